<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Изменять нечего.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Подтвердить %Ln строку?</numerusform>
            <numerusform>Подтвердить %Ln строки?</numerusform>
            <numerusform>Подтвердить %Ln строк?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Подтвердить %Ln строку как снятую с производства?</numerusform>
            <numerusform>Подтвердить %Ln строки как снятые с производства?</numerusform>
            <numerusform>Подтвердить %Ln строк как снятые с производства?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Снять назначение %Ln строки?</numerusform>
            <numerusform>Снять назначение %Ln строк?</numerusform>
            <numerusform>Снять назначение %Ln строк?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Снять назначение %Ln строки и подтвердить её как снятую с производства?</numerusform>
            <numerusform>Снять назначение %Ln строк и подтвердить их как снятые с производства?</numerusform>
            <numerusform>Снять назначение %Ln строк и подтвердить их как снятые с производства?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln из них уже подтверждена.</numerusform>
            <numerusform>%Ln из них уже подтверждены.</numerusform>
            <numerusform>%Ln из них уже подтверждены.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln из них потеряет своё назначение диапазонов значений.</numerusform>
            <numerusform>%Ln из них потеряют свои назначения диапазонов значений.</numerusform>
            <numerusform>%Ln из них потеряют свои назначения диапазонов значений.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln строка без цели останется неподтверждённой.</numerusform>
            <numerusform>%Ln строки без цели останутся неподтверждёнными.</numerusform>
            <numerusform>%Ln строк без цели останутся неподтверждёнными.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln строка останется как есть.</numerusform>
            <numerusform>%Ln строки останутся как есть.</numerusform>
            <numerusform>%Ln строк останутся как есть.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln строка с конфликтом не изменится.</numerusform>
            <numerusform>%Ln строки с конфликтом не изменятся.</numerusform>
            <numerusform>%Ln строк с конфликтом не изменятся.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln строка не внесена ни в один целевой проект.</numerusform>
            <numerusform>%Ln строки не внесены ни в один целевой проект.</numerusform>
            <numerusform>%Ln строк не внесены ни в один целевой проект.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>Подтверждена %Ln строка.</numerusform>
            <numerusform>Подтверждены %Ln строки.</numerusform>
            <numerusform>Подтверждено %Ln строк.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln строка подтверждена как снятая с производства.</numerusform>
            <numerusform>%Ln строки подтверждены как снятые с производства.</numerusform>
            <numerusform>%Ln строк подтверждено как снятые с производства.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Назначение %Ln строки снято.</numerusform>
            <numerusform>Назначение %Ln строк снято.</numerusform>
            <numerusform>Назначение %Ln строк снято.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Назначение %Ln строки снято, она подтверждена как снятая с производства.</numerusform>
            <numerusform>Назначение %Ln строк снято, они подтверждены как снятые с производства.</numerusform>
            <numerusform>Назначение %Ln строк снято, они подтверждены как снятые с производства.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>нет преемника</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Уверенность</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Новая строка</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Причина</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 здесь уже решено или надёжно</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 без строки в новом выпуске</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 тогда подтверждено как снятые с производства</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 в проектах, которых здесь нет</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 там в конфликте</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Не перенято: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Из %1 нечего перенимать.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>В файле нет сопоставления с выпуска каталога %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Этот файл тоже ведёт к выпуску каталога %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Выберите сопоставление, которое ведёт от того же старого выпуска каталога к более раннему новому.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Перенято из %1: там подтверждено для выпуска каталога %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Чтение прежнего сопоставления</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Из %1 ничего нельзя перенять.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Каталог выпуска %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Поиск целевых проектов</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Решения перенимаются</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Прервано, ничего не перенято</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Решения, перенятые из %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Перенято из %1: %2 из %Ln подтверждённой строки, %3 назначено надёжно, %4 предложено.</numerusform>
            <numerusform>Перенято из %1: %2 из %Ln подтверждённых строк, %3 назначено надёжно, %4 предложено.</numerusform>
            <numerusform>Перенято из %1: %2 из %Ln подтверждённых строк, %3 назначено надёжно, %4 предложено.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Папка старого выпуска каталога</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Папка нового выпуска каталога</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Папки каталогов</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Где лежат оба выпуска каталога этого файла сопоставления? Папки запоминаются вместе с файлом.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Старый выпуск (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Новый выпуск (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Нужны обе папки.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 не является папкой.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>В старом выпуске нет %1. Нужна папка, в которой лежит каталог %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>В новом выпуске нет каталога %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Строку %1 в %2 нельзя показать</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Ни одна строка не в конфликте</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Все конфликты разрешены; теперь сохраните</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Конфликт %1 из %2, ещё не решено: %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln строка из %1 противоречит так же. Действует ли решение для всех?</numerusform>
            <numerusform>%Ln строки из %1 противоречат так же. Действует ли решение для всех?</numerusform>
            <numerusform>%Ln строк из %1 противоречат так же. Действует ли решение для всех?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Своё: %1
Другое: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Для всех</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Строка за строкой</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Строка не в конфликте</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Своё решение неизвестно: строка уже при открытии была в конфликте</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Ни одна строка не в конфликте.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Все конфликты разрешены.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>Ещё %Ln строка противоречит так же, как эта.</numerusform>
            <numerusform>Ещё %Ln строки противоречат так же, как эта.</numerusform>
            <numerusform>Ещё %Ln строк противоречат так же, как эта.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Конфликты</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Стороны конфликта</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Своё</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Решить заново</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>Нерешённых конфликтов: %1 из %Ln.</numerusform>
            <numerusform>Нерешённых конфликтов: %1 из %Ln.</numerusform>
            <numerusform>Нерешённых конфликтов: %1 из %Ln.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>не решён</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>своё</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>другое</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>новое</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Своё решение</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Другое решение</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Действует</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>назначена автоматически</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>требует проверки</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>подтверждена</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>без цели, открыта</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>подтверждена как снятая с производства</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, строка %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Целевой проект</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Целевая строка</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Диапазоны значений</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Старая строка</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Раньше</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Своё решение</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Другое решение</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Сведения</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>равно</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>заменено, как ещё в %Ln строке</numerusform>
            <numerusform>заменено, как ещё в %Ln строках</numerusform>
            <numerusform>заменено, как ещё в %Ln строках</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>похоже</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>различно</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>только в новой строке</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>только в старой строке</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Переменная</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Старое</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Новое</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>В таблице нет этой строки.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Без цели. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Назначенной строки нет среди кандидатов.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Старое и новое</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Кандидаты</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Подтверждена.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Надёжно назначена.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln строка</numerusform>
            <numerusform>%Ln строки</numerusform>
            <numerusform>%Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>сравнены: первые %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Общих различий нет.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Общее: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Выделенные строки</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Выпуск каталога</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Файл содержит несколько выпусков каталога. Какой открыть?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Чтение файла сопоставления</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Файл не удаётся открыть.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Файл открыт только для чтения.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Блокировку можно снять, если там точно больше никто не работает, например после сбоя компьютера.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Только чтение</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Снять &amp;блокировку</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Блокировку не удалось снять.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Каталоги неизвестны; они задаются через --source и --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Сохранить изменения в %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Отброшенные изменения будут потеряны.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Отменить изменения</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln строка</numerusform>
            <numerusform>%1: %Ln строки</numerusform>
            <numerusform>%1: %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ещё %Ln строка в конфликте, в этих проектах:</numerusform>
            <numerusform>Ещё %Ln строки в конфликте, в этих проектах:</numerusform>
            <numerusform>Ещё %Ln строк в конфликте, в этих проектах:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Показать конфликты</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>&amp;Всё равно сохранить</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Файл не сохранён.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Объединить &amp;изменения</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Оставить &amp;копию и записать заново</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Записать свою версию</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Изменения других приняты. Проверьте их и сохраните ещё раз.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Изменения других не удалось принять.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Файл сопоставления не удаётся создать.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Чтение %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Файл сопоставления %1 не удаётся прочитать (%2).
Выберите другой файл или верните резервную копию %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Файл сопоставления %1 не удаётся прочитать (%2).
Выберите другой файл.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 не содержит выпусков.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 не содержит выпуска %2. Имеются: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 открыт только для чтения.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 сейчас редактирует %2, поэтому он открыт только для чтения.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>В папку файла %1 нельзя писать (%2). Поэтому файл открыт только для чтения; сохранив под другим именем, его можно редактировать.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Для %1 есть несохранённая работа. Она будет предложена, как только файл удастся открыть для редактирования (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>У %1 есть и другое имя (жёсткая ссылка). При сохранении файл под другим именем останется прежним.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Сохранение %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Резервное копирование %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 сейчас редактирует %2. Ничего не записано. Выберите другое имя.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>В папке файла %1 ничего нельзя создать (%2). Ничего не записано. Выберите другую папку.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Ни одной строки этого проекта нет в фильтре.
Откройте «%1» и выберите «%2», чтобы снова увидеть все строки.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Ни у одного проекта нет строк в фильтре.
Откройте «%1» и выберите «%2», чтобы снова увидеть все проекты.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Файлы сопоставления (*.json);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Открыть файл сопоставления</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Сохранить файл сопоставления</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Сохранить таблицу</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Таблицы (*.csv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Выбрать общую копию</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Перенять решения из</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Фильтр снят: в проекте нет подходящих строк</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Достигнут конец, продолжение с начала</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Достигнуто начало, продолжение с конца</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>В фильтре не осталось строк</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>заменённый текст</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>пересчитанное число</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Почему открыта</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Вид различия</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Различие в столбце</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Последним решил</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>никто</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(ничего из этого)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>не выбранные</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Чтение таблиц...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln строка</numerusform>
            <numerusform>%Ln строки</numerusform>
            <numerusform>%Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>в %Ln проекте</numerusform>
            <numerusform>в %Ln проектах</numerusform>
            <numerusform>в %Ln проектах</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Без фильтра: все строки</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Нечитаемых таблиц: %Ln</numerusform>
            <numerusform>Нечитаемых таблиц: %Ln</numerusform>
            <numerusform>Нечитаемых таблиц: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Фильтр по всем строкам</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>С&amp;нять фильтр</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Происхождение</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>перенято из прежнего сопоставления</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 не является обычным файлом и не может служить блокировкой. Ничего не записано. Удалите то, что там находится.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 сейчас сохраняет другая программа. Ничего не записано. Сохраните ещё раз чуть позже.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>В папке файла %1 ничего нельзя создать (%2). Ничего не записано. Освободите место или сохраните под другим именем.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 не удаётся прочитать (%2). Ничего не записано. Сохраните под другим именем.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 не является читаемым файлом сопоставления (%2). Ничего не записано. При сохранении имеющийся файл останется под именем с меткой времени, и будет создан новый, содержащий только этот выпуск.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 не является читаемым файлом сопоставления (%2). Ничего не записано. При сохранении имеющийся файл останется под именем с меткой времени, и будет создан новый. Остальные выпуски берутся из резервной копии %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 нечитаем, и его не удалось сохранить как %2 (%3). Ничего не записано. Сохраните под другим именем.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 с момента открытия удалён или переименован. При сохранении файл будет создан заново и будет содержать только этот выпуск (%2). Пока ничего не записано.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 с момента открытия изменён кем-то другим, но не этот выпуск (%2). При сохранении остальные выпуски останутся такими, какие они сейчас в файле. Пока ничего не записано.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 с момента открытия изменён кем-то другим, включая этот выпуск (%2). При сохранении чужие изменения этого выпуска будут потеряны. Пока ничего не записано: всё равно сохраните, сохраните под другим именем или откройте файл заново.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>В %1 нельзя писать (%2). Ничего не записано. Проверьте права на запись или сохраните под другим именем.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 не сохранён: %2. Файл не изменён, изменения по-прежнему открыты. Освободите место и сохраните ещё раз или сохраните под другим именем.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>файл не удалось записать полностью</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>записанный файл нечитаем (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>записанный файл не содержит того, что нужно было сохранить</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>в записанном файле нет выпуска %1, или он другой</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Резервную копию %1 не удалось создать (%2). Ничего не записано. Освободите место или сохраните под другим именем.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 во время сохранения изменён кем-то другим. Ничего не записано. Сохраните ещё раз.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 не сохранён: %2. Файл не изменён, изменения по-прежнему открыты. Сохраните под другим именем.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Содержание</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Найти на странице</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;История решений...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Кто что решил, когда и почему</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Причина решения...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>К последнему решению или к выбранным строкам, например почему нет преемника</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Строка %1 в %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln строка в %1</numerusform>
            <numerusform>%Ln строки в %1</numerusform>
            <numerusform>%Ln строк в %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Причина записана: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>История решений</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Выбранная строка</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Выбранный проект</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Все проекты</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Искать: кто, проект, цель или причина</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Прочитать заново</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Сохранить как CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Нечитаемых строк журнала: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Решений: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Файл не удаётся записать.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>нет преемника</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (не сохранено)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Кто</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>До этого</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Новое</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Перенято из %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Папка с файлами CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Папка каталога</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Импорт таблиц</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Папка с файлами CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>Папка &amp;каталога:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Из каждого файла CSV получается проект с таблицей на том же месте каталога. При повторном импорте таблиц номера строк сохраняются.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Не указана папка с файлами CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Нет папки каталога; она будет создана, если есть папка над ней.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Одна папка лежит внутри другой.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Подтвердить строку или назначить выбранную строку</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Снять назначение строки</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Снять назначение и подтвердить как снятую с производства</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Изменить назначение диапазонов значений</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Копировать условие из строки</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Подтвердить весь проект</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Найти в таблице</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Найти далее</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Найти предыдущее</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Фильтр столбца</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Копировать строки</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Крупнее таблица</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Мельче таблица</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Таблица обычного размера</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>По &amp;умолчанию</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Без клавиши</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Команда или клавиша</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Команды</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Где</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Клавиша для %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Клавиша %1 нужна самим полям и спискам.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Клавишу %1 имели бы %2 и %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Выбрано вами</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>Тогда у %1 больше не будет клавиши %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Клавиша %1 теперь у %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Ничего не найдено</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Подтверждена: назначение решено</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Предложение: нужно подтвердить или исправить</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Без значка: однозначно равна, назначена программой</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Назначение не найдено</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Снята с производства: подтверждено, что назначения нет</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Конфликт с изменением другого</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Проект или таблицу не удаётся прочитать</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Назначения диапазонов значений строки</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>В целевой таблице: назначенная строка</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Условные обозначения</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Условие скопировано в буфер обмена</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Скопированное условие пока нельзя использовать: значение отсутствует, является диапазоном или содержит кавычку: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Здесь, в фильтре, всё готово; вне его открыта ещё %Ln строка.</numerusform>
            <numerusform>Здесь, в фильтре, всё готово; вне его открыты ещё %Ln строки.</numerusform>
            <numerusform>Здесь, в фильтре, всё готово; вне его открыто ещё %Ln строк.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Достигнут конец, продолжение с начала</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Достигнуто начало, продолжение с конца</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Конфликт %1 из %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Ни одна строка не находится в выбранных состояниях</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Больше ни одна строка не требует решения</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Ни одну из открытых строк нельзя показать; нет таблиц</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Перейти к строке</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Номер или обозначение по стандарту:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Проект не выбран</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>В этом проекте нет строки с «%1»</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Совпадение %1 из %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Выполнить</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Шаг можно отменить.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Имеются в виду выделенные строки.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Имеются в виду все строки проекта.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Фильтр: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>В других проектах таких строк нет</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Имеются в виду только показанные строки проекта: %1 из %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Конфликт</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Показать только строки, конфликтующие с изменением другого, и их проекты</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Требует проверки</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Показать только строки с предложением, которое нужно подтвердить или исправить, и их проекты</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Без цели</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Показать только строки, для которых ничего не найдено, и их проекты</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Показать только однозначно равные строки, назначенные программой, и их проекты</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Подтверждена</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Показать только строки с подтверждённым назначением и их проекты</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Снята с производства</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Показать только строки, подтверждённые как снятые с производства, и их проекты</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Использовать базу связей</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Файл на этом компьютере</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Сервер PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>обычный</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Пароль находится в файле паролей, в хранилище ключей рабочего стола или в PGPASSWORD либо вводится при входе. Он не сохраняется.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>если возможно</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>всегда</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>всегда, с проверкой сервера</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Вид:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Файл:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Компьютер:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Порт:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;База данных:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>По&amp;льзователь:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Шифрование:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>База связей: не указано имя файла.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>База связей: имя базы данных не указано или недопустимо.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>Проверить &amp;номера базы связей</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>В базе связей нет группы, к которой вы принадлежите.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Выбрать группу</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Группа базы связей:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Строки %1 из %2 нет в этом сопоставлении.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Проверка номеров базы связей</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Номера не удалось проверить.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Изменения в базе связей, возможно, потеряны.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Нет лицензии на базу связей.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Вход в базу связей</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Пароль действует до завершения программы и не сохраняется. Если он пуст, берётся пароль из файла паролей.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Под этим именем в протоколе указано, кто что-либо удалил.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Менеджер связей</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Искать номер, проект или описание</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Показать строку</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Связать с другой строкой...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Затем выберите проект и строку и отправьте выбор командой «Выбор в менеджер связей».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>Последнее &amp;удалённое...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Связи: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Ничего не удалено, что можно было бы восстановить.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Восстановить последнее удалённое? Строк: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>Удалил(а) %1, %2, из %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Первая %Ln связь; поиск покажет другие.</numerusform>
            <numerusform>Первые %Ln связи; поиск покажет другие.</numerusform>
            <numerusform>Первые %Ln связей; поиск покажет другие.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Проверка номеров</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Номеров у проектов этого сопоставления: %1, у других проектов: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Не сравнивалось, так как нечитаемо: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Строка снята с производства или отсутствует</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>подтверждена как снятая с производства</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>в проекте её нет</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>На него претендуют несколько строк</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Деталь отличается</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Деталь отличается (не сравнивалась)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Открытые строки с номерами</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Номеров: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Строки %1 нет в %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Проект %1 нельзя показать.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Проект, строка, команда или настройка</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Найденное</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Достаточно частей слов; число в конце означает строку.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln совпадение</numerusform>
            <numerusform>%Ln совпадения</numerusform>
            <numerusform>%Ln совпадений</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Первые совпадения: %1 из %Ln</numerusform>
            <numerusform>Первые совпадения: %1 из %Ln</numerusform>
            <numerusform>Первые совпадения: %1 из %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Строка %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Настройка</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Ошибка: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Предупреждение: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Очистить сообщения</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Копировать все сообщения</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Пользователь:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>Па&amp;роль:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Нет соединения с базой связей: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Номера ERP не удаётся прочитать. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Строки назначены заново: без изменений</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Здесь нет такой строки. %1 переходит к следующей.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>только для чтения</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Каталог</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Слева старый выпуск каталога. Значки показывают, где ещё нужно что-то решить. Выберите проект, чтобы увидеть его строки.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Цели</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Здесь находятся проекты нового выпуска, которые могут принять строки, с условиями и сопоставлениями переменных.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Слева старая таблица, справа новая. %1 подтверждает назначение или назначает строку, выбранную справа, %2 снимает его, %3 подтверждает, что строка снята с производства.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Что ещё открыто</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Счётчик показывает, сколько строк требуют решения. %1 переходит к следующей, в том числе в следующем проекте.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Ничего не теряется</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Каждый шаг можно отменить. Несохранённое программа после сбоя предложит восстановить. Экскурсия находится в меню «Справка».</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Назначить строки всего каталога?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Подтверждённое остаётся в любом случае. Шаг можно отменить.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Только строки без назначения</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Всё неподтверждённое заново</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Назначены все проекты</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Целевого проекта %1 нет.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Целевой проект: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Настройки: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Для этого места нет подсказки</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Очистить список</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Общий доступ</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Недавно открытые</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Пе&amp;реход</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>Провер&amp;ка</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Только строки</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>База связей</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Состояния строк</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Инструменты</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Нет файла, открытого для редактирования.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Свои изменения поверх версии файла</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln конфликт: своё решение</numerusform>
            <numerusform>%Ln конфликта: своё решение</numerusform>
            <numerusform>%Ln конфликтов: своё решение</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln конфликт: решение другой стороны</numerusform>
            <numerusform>%Ln конфликта: решение другой стороны</numerusform>
            <numerusform>%Ln конфликтов: решение другой стороны</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln конфликт: решить заново</numerusform>
            <numerusform>%Ln конфликта: решить заново</numerusform>
            <numerusform>%Ln конфликтов: решить заново</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>В журнал %1 не удаётся писать (%2). После сбоя изменения были бы потеряны: скорее сохраните.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Восстановленную версию не удаётся сохранить (%1). Освободите место и откройте ещё раз; журнал не изменён.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Восстановление после сбоя</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Журнал %1 не удаётся создать (%2). После сбоя изменения были бы потеряны: сохраняйте чаще.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Файл сопоставления не открыт.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Идёт сохранение.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Не сохранено. %1 Сохраните под другим именем.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Блокировка %1 потеряна и не может быть возобновлена. Другие могли бы редактировать файл одновременно.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Автоматическое сохранение не удалось (%1). Скорее сохраните.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Изменение не принято. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Конфликты отмечены</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Отменено: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Повторено: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>«%1» больше не подходит к тому, что изменено позже. Список шагов показывает, что мешает.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Поиск целевых проектов</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Прервано, ничего не создано</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Назначение строк</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln проект: на том же месте %1, на другом %2, разделено %3, без цели %4, нечитаемых %5</numerusform>
            <numerusform>%Ln проекта: на том же месте %1, на другом %2, разделено %3, без цели %4, нечитаемых %5</numerusform>
            <numerusform>%Ln проектов: на том же месте %1, на другом %2, разделено %3, без цели %4, нечитаемых %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 из %Ln проекта</numerusform>
            <numerusform>%1 из %Ln проектов</numerusform>
            <numerusform>%1 из %Ln проектов</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>из них назначено %1, требуют проверки %2, без цели %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Прервано: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 с %Ln строкой</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>Принято %Ln изменение.</numerusform>
            <numerusform>Принято %Ln изменения.</numerusform>
            <numerusform>Принято %Ln изменений.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln строку обе стороны решили одинаково.</numerusform>
            <numerusform>%Ln строки обе стороны решили одинаково.</numerusform>
            <numerusform>%Ln строк обе стороны решили одинаково.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln строка решена по-разному и отмечена как конфликт.</numerusform>
            <numerusform>%Ln строки решены по-разному и отмечены как конфликт.</numerusform>
            <numerusform>%Ln строк решены по-разному и отмечены как конфликт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln другое противоречие: действует версия файла.</numerusform>
            <numerusform>%Ln других противоречия: действует версия файла.</numerusform>
            <numerusform>%Ln других противоречий: действует версия файла.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Строку %1 нельзя показать</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Находка не выбрана</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Исправлено: %1 в %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Таблицы сравниваются</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>Просмотрена %Ln назначенная строка</numerusform>
            <numerusform>Просмотрены %Ln назначенные строки</numerusform>
            <numerusform>Просмотрено %Ln назначенных строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln находка</numerusform>
            <numerusform>%Ln находки</numerusform>
            <numerusform>%Ln находок</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Соседство</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Строки с %1 по %2 сдвинуты на %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Строки %1 и %2 переставлены</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Строка %1 не на месте на %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>У строки %1 целевая строка другой</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Строка %1 пропущена</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>не решён</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Исправлено: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Находка</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Исправлено</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Папка старого выпуска каталога</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Папка нового выпуска каталога</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>С&amp;разу назначить строки</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Новое сопоставление</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Старый выпуск каталога:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Каталог в ней:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Новый выпуск каталога:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Выбрать файл сопоставления</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Файл сопоставления:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>Со&amp;здать</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Не указана папка старого выпуска каталога.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Не указана папка нового выпуска каталога.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Каждому выпуску нужна папка с каталогом.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Файлу сопоставления нужно имя.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Папки %1 нет.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 уже существует.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>При сохранении добавится новый выпуск; выпуск с той же датой будет заменён вместе со всем, что в нём подтверждено.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Использовать этот файл</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>носитель заполнен</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>файл становится больше, чем здесь разрешено</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>нет права на запись</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>носитель защищён от записи</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>папки или файла больше нет</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>на его месте находится не обычный файл</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>без цели</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Старая строка</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Новая строка</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Другие различия</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Таблицу проекта не удаётся прочитать.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Стандарт:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Обозначение:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Версия проекта:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Версия таблицы:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Строк:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Файл:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln открытая строка с предложением</numerusform>
            <numerusform>%Ln открытые строки с предложением</numerusform>
            <numerusform>%Ln открытых строк с предложением</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>в %Ln шаблоне</numerusform>
            <numerusform>в %Ln шаблонах</numerusform>
            <numerusform>в %Ln шаблонах</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln из них ещё сравнивается</numerusform>
            <numerusform>%Ln из них ещё сравниваются</numerusform>
            <numerusform>%Ln из них ещё сравниваются</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Выбрана %Ln строка</numerusform>
            <numerusform>Выбраны %Ln строки</numerusform>
            <numerusform>Выбрано %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln из них исключена</numerusform>
            <numerusform>%Ln из них исключены</numerusform>
            <numerusform>%Ln из них исключено</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Различия открытых строк</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>в %Ln проекте</numerusform>
            <numerusform>в %Ln проектах</numerusform>
            <numerusform>в %Ln проектах</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln открытая строка без преемника</numerusform>
            <numerusform>%Ln открытые строки без преемника</numerusform>
            <numerusform>%Ln открытых строк без преемника</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Таблицы сравниваются: прочитан %Ln проект</numerusform>
            <numerusform>Таблицы сравниваются: прочитано %Ln проекта</numerusform>
            <numerusform>Таблицы сравниваются: прочитано %Ln проектов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln строка</numerusform>
            <numerusform>%Ln строки</numerusform>
            <numerusform>%Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln проект</numerusform>
            <numerusform>%Ln проекта</numerusform>
            <numerusform>%Ln проектов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>Ещё у %Ln строки есть эти и другие различия</numerusform>
            <numerusform>Ещё у %Ln строк есть эти и другие различия</numerusform>
            <numerusform>Ещё у %Ln строк есть эти и другие различия</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Различие</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Уверенность</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Исключения</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>близкое значение</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>другое число</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>другая формулировка</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>значение добавлено</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>значение отсутствует</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>несравнимо</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>нет различий</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>другое написание</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>сомнительно: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>вся папка без цели: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>весь проект без цели: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>целевого проекта больше нет: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 больше нет</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>нет похожей строки: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>имя проекта</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>другое</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>другое значение</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>в каждой строке одно или несколько из них</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>недоступно: файл не открыт</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>недоступно: база связей подключается</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>недоступно: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>недоступно: база связей не подключена</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>недоступно: менеджер связей не ждёт выбора</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>недоступно: проект не выбран</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>недоступно: строка не выбрана</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Номер ERP для %1, строка %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Просим присвоить номер ERP.

Проект: %1
Строка: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Не удалось начать письмо.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>На этом компьютере не настроена почтовая программа. Текст запроса:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Нет видимой таблицы, которую можно напечатать</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Печать: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 передано на принтер</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 напечатано в %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>Не удалось напечатать %1.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Принтер не принимает страницы.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 не удаётся записать.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Страница</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Вопрос</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln строка подтверждена, хотя у значений её диапазона нет новой строки.</numerusform>
            <numerusform>%Ln строки подтверждены, хотя у значений их диапазонов нет новой строки.</numerusform>
            <numerusform>%Ln строк подтверждены, хотя у значений их диапазонов нет новой строки.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>Всё &amp;равно подтвердить</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln строка</numerusform>
            <numerusform>%1: %Ln строки</numerusform>
            <numerusform>%1: %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>У строки нет назначения диапазонов значений.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>отсутствуют: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>многократно: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>нет в старом диапазоне: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Диапазон значений строки</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: назначено значений: %2 из %Ln</numerusform>
            <numerusform>%1: назначено значений: %2 из %Ln</numerusform>
            <numerusform>%1: назначено значений: %2 из %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Причина решения</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Для:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Причина:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>выпуск прекращён</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>объединена с другой деталью</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>разделена на несколько деталей</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>перенесена в другой каталог</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ещё не проверена</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Восстановлено</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>По состоянию на</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Подтверждена</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Требует проверки</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Без цели</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Сохранённая версия новее всего, что можно восстановить.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>С &amp;более поздними изменениями (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Открыть сохранённую версию</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln шаг</numerusform>
            <numerusform>%Ln шага</numerusform>
            <numerusform>%Ln шагов</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Для %1 есть несохранённая работа: %2, последний — «%3». Автор: %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 с %Ln строкой</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 в %Ln проекте</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Импорт таблиц</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>У %1 больше нет файла CSV, он остаётся как есть</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>В папке нет файлов CSV; ничего не импортировано</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Прервано: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Записано не всё: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 не удаётся записать.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Экспорт строк</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Таблицы (*.csv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Строки экспортируются</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Прервано, ничего не экспортировано</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Записать отчёт</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Файлы PDF (*.pdf);;Страницы HTML (*.html);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Создание отчёта</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Прервано, отчёт не записан</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Вёрстка страниц</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Отчёт записан в %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Отменено, отчёт не создан</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Страница %1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln таблица</numerusform>
            <numerusform>%Ln таблицы</numerusform>
            <numerusform>%Ln таблиц</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>новых %1, изменённых %2, неизменённых %3, не импортировано %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln строка экспортирована в %1</numerusform>
            <numerusform>%Ln строки экспортированы в %1</numerusform>
            <numerusform>%Ln строк экспортировано в %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 с %Ln строкой</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
            <numerusform>%1 с %Ln строками</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Согласованные замены</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>во всём выпуске каталога</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Согласовать</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Отозвать</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Подтверждения</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>П&amp;ринять</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Замена говорит, что старое значение соответствует новому. Она даёт предложения, но ничего не подтверждает.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>согласовано</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>согласовано в %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Таблицы читаются</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln строка за</numerusform>
            <numerusform>%Ln строки за</numerusform>
            <numerusform>%Ln строк за</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln строка против</numerusform>
            <numerusform>%Ln строки против</numerusform>
            <numerusform>%Ln строк против</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Согласованных замен нет. Пока открыт список различий, его замены предлагаются здесь.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Отчёт о сопоставлении: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Выпуск каталога %1 в %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Создано %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Состояние строк</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>По папкам, со всем, что ниже</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>По проектам</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Почему строки открыты</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Чем открытые строки отличаются от своих предложений</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Выборки</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Кто что решил</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Открытые строки</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Что не удалось прочитать</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Подтверждена</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Подтверждены как снятые с производства</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Надёжно назначены</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Требует проверки</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Без цели</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>В конфликте</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Обозначение</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Различия</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Вероятность</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Исключения</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Примеры</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Кто</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Оценено</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Верно</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Не более чем неверно (уверенность 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>отклонена</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>таблица нечитаема</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>несравнимо</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>нет различий</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>двое решили по-разному</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>решает кто-то другой</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>таблица нечитаема</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>условие или формула не выполняется</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>ни одна цель не подходит</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>нет столбца</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>несколько строк равны</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>слишком непохоже</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>равно, только не подтверждено</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>сомнительно: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Открытые строки без преемника</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Строки, подтверждённые как снятые с производства</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Что у них общего</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>всего</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Перенято из прежних сопоставлений</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Прежнее сопоставление</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Всё ещё как перенято</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Оценённые строки</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Готовые строки: %1 из %2; открыто: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Читать целевые проекты из репозитория</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Каталог = svn://сервер:порт/путь</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>По одному каталогу в строке. Без строки имя каталога — это и имя его сервера.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>последняя</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> МБ</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>&amp;Сервер:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>&amp;Ревизия:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Место на этом компьютере:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Ожидание сервера:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Сервер, строка %1: &quot;%2&quot; не имеет вида &quot;Каталог = svn://сервер:порт/путь&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Вход в репозиторий</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 требует входа.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Имя и пароль действуют до завершения программы и не сохраняются.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Строку %1 нельзя показать</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Открытых строк больше нет</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Таблицы ещё не сравнены</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>С начала: открыта %Ln строка</numerusform>
            <numerusform>С начала: открыты %Ln строки</numerusform>
            <numerusform>С начала: открыто %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Открытые строки идут по неуверенности</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Открытые строки идут по месту</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Строка не относится к выбранному шаблону</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Строка %1 исключена</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Шаблон не выбран, или все его строки решены</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln строка</numerusform>
            <numerusform>%Ln строки</numerusform>
            <numerusform>%Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>подтвердить в %Ln проекте?</numerusform>
            <numerusform>подтвердить в %Ln проектах?</numerusform>
            <numerusform>подтвердить в %Ln проектах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Шаг можно отменить.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Подтвердить</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Подтверждена %Ln строка</numerusform>
            <numerusform>Подтверждены %Ln строки</numerusform>
            <numerusform>Подтверждено %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Кандидата %1 нет</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Строка %1 → %2 подтверждена</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Согласованные замены: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Выберите шаблон или выделите открытые строки</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Выборка</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Отобрать</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Выборка, строка %1 из %2: + верно, − неверно</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Выборка не проводится</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Все строки выборки уже решены</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>верно %1 из %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Выборка отклонена, %1; оценил(а) %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>все строки оценены</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>с уверенностью 95 % неверно меньше %1 %</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Выборка: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>оценил(а) %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>там была неверная</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Строка %1 неверна: выборка окончена</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>Посмотреть &amp;неверную строку</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln из них сомнительна.</numerusform>
            <numerusform>%Ln из них сомнительны.</numerusform>
            <numerusform>%Ln из них сомнительны.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Все шаблоны обработаны</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>в %Ln проекте</numerusform>
            <numerusform>в %Ln проектах</numerusform>
            <numerusform>в %Ln проектах</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln строка подтверждена как снятая с производства</numerusform>
            <numerusform>%Ln строки подтверждены как снятые с производства</numerusform>
            <numerusform>%Ln строк подтверждено как снятые с производства</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Строка %1 в %2 неверна. Набор разделён; с какой частью продолжить?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Столько из %Ln строки отбирается случайно и оценивается по одной. %1 верных говорят с уверенностью 95 %, что неверных меньше 5 %, %2 верных — меньше 1 %.</numerusform>
            <numerusform>Столько из %Ln строк отбирается случайно и оценивается по одной. %1 верных говорят с уверенностью 95 %, что неверных меньше 5 %, %2 верных — меньше 1 %.</numerusform>
            <numerusform>Столько из %Ln строк отбирается случайно и оценивается по одной. %1 верных говорят с уверенностью 95 %, что неверных меньше 5 %, %2 верных — меньше 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Консоль скриптов</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Вывод скриптов</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Строка скрипта</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Строка JavaScript. Enter выполняет её, Tab дополняет, стрелки вверх и вниз листают.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Останавливает работающий скрипт (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Удаляет вывод</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Скрипт %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(консоль)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Готово, код %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Он слишком велик.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Это не текст в UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 не удаётся прочитать. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Открыть скрипт</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Скрипты (*.js);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Сохранить скрипт</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 не удаётся записать. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Скрипт не сохранён.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Новый скрипт</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Скрипт</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Открыть …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Выполнить</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Аргументы:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Текст скрипта</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Аргументы</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>на</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(процесс %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Журнал %1 не удаётся прочитать (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>После последнего завершённого сеанса журнал %1 нечитаем. Что там было, неизвестно; журнал сохраняется.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Конец журнала %1 нечитаем. Последнего изменения может не быть.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Журнал %1 повреждён. После повреждения ещё подходит %Ln изменение, больше не подходят: %2; других может не хватать. Журнал сохраняется.</numerusform>
            <numerusform>Журнал %1 повреждён. После повреждения ещё подходят %Ln изменения, больше не подходят: %2; других может не хватать. Журнал сохраняется.</numerusform>
            <numerusform>Журнал %1 повреждён. После повреждения ещё подходят %Ln изменений, больше не подходят: %2; других может не хватать. Журнал сохраняется.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Журнал %1 повреждён или не подходит к файлу сопоставления. Не хватает не менее %Ln более позднего изменения; журнал сохраняется.</numerusform>
            <numerusform>Журнал %1 повреждён или не подходит к файлу сопоставления. Не хватает не менее %Ln более поздних изменений; журнал сохраняется.</numerusform>
            <numerusform>Журнал %1 повреждён или не подходит к файлу сопоставления. Не хватает не менее %Ln более поздних изменений; журнал сохраняется.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>После реше&amp;ния переходить к следующей открытой строке</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Как на рабочем столе</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Светлые</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Тёмные</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source> min</source>
        <translation> мин</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Цвета:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Ра&amp;змер шрифта:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Резер&amp;вная копия каждые:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Высокая контрастность</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>По одной папке в строке; из неё можно читать то, что файлы каталога называют вне каталогов.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Разрешённые папки:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Разрешённые папки: «%1» — не папка с полным путём.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Сопоставление никому не открыто. Сначала выберите общую копию.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 уже существует, и это другое сопоставление. Выберите другую копию или загрузите имеющуюся в новый файл.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Другие что-то опубликовали с последнего обновления.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Строки в конфликте не публикуются: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Есть изменения в папках других: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Папка уже занята: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Сейчас публикует кто-то другой (%1). Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Общая копия недоступна: %1. Свой файл не изменён; повторите попытку позже.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Один из файлов не является читаемым сопоставлением: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Не удалось записать: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Не получилось.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Чтение общей копии</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Общий доступ через %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Получение изменений других</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Нового нет</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Публикация изменений</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Сопоставление изменено</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Опубликовано, версия %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Сначала это будет принято. После этого можно публиковать.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Всё равно опубликовать</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Взять папки себе</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>В&amp;зять</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Запись папок</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Своих папок больше нет</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Свои папки: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(здесь)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>держит открытым</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>не держит открытым</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>последний раз %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>папки %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Своя версия %1, новейшая версия %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Другие что-то опубликовали.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>От других нового нет.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Свои изменения ещё не опубликованы.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Общая копия: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Последняя публикация была прервана, но дошла.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Последняя публикация была прервана. Опубликуйте ещё раз.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Общий файл был изменён в рабочей копии и не отправлен. Это сохранено в %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Рабочая копия была оставлена посреди работы и приведена в порядок.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Служебные данные рабочей копии были повреждены и получены заново; прежние — %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Нечто прерванное приведено в порядок.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Папки каталога через запятую; * означает любые символы, ? — один. Пустое поле возвращает все:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>отменить</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Всё решено</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Строки, которые ещё требуют решения</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Фильтр: нет строк</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Строки, которые показывает фильтр по всем строкам</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln строка&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln строки&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln строк&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Открыто: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Фильтр: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 в %Ln проекте</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Ещё не назначена ни одна строка</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Прерывает текущую работу; готовое остаётся</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Ошибки и предупреждения: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Шаги</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Искать кто, что или строки</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Вернуть до этого места</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Отменяет этот и все последующие действующие шаги</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>К с&amp;троке</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Отменить с зависимыми (%Ln)</numerusform>
            <numerusform>&amp;Отменить с зависимыми (%Ln)</numerusform>
            <numerusform>&amp;Отменить с зависимыми (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Отменить только этот</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Повторить с более ранними (%Ln)</numerusform>
            <numerusform>&amp;Повторить с более ранними (%Ln)</numerusform>
            <numerusform>&amp;Повторить с более ранними (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Шагов пока нет</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Другие шаги от него не зависят.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Шаг можно повторить отдельно.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>На нём основаны: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Он основан на: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Мешают, так как решили иначе: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Теперь там стоит другое, чего не решал ни один шаг этого списка, например другая программа. Шаг больше нельзя переместить.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 в %Ln проекте</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>действует</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>отменён</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>устарел</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>По состоянию на</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Кто</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Строки</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Изменение в %1 подействует, только когда строки будут назначены заново. При этом сохранится только подтверждённое.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln строка в %1 была подтверждена как снятая с производства и больше не подтверждена: %2</numerusform>
            <numerusform>%Ln строки в %1 были подтверждены как снятые с производства и больше не подтверждены: %2</numerusform>
            <numerusform>%Ln строк в %1 были подтверждены как снятые с производства и больше не подтверждены: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>В %1 остаются игнорируемые переменные: %2. Чтобы снова сопоставить одну из них, выберите &quot;Формула...&quot; или удалите строку и введите её заново.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Условие целевого проекта %1 в %2 отпало.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Сопоставление переменных целевого проекта %1 в %2 отпало.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Строка %1 → %2 в %3: эта же целевая строка ещё у %Ln строки: %4</numerusform>
            <numerusform>Строка %1 → %2 в %3: эта же целевая строка ещё у %Ln строк: %4</numerusform>
            <numerusform>Строка %1 → %2 в %3: эта же целевая строка ещё у %Ln строк: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln строка в %1 делит целевую строку с вновь назначенными: %2</numerusform>
            <numerusform>%Ln строки в %1 делят целевую строку с вновь назначенными: %2</numerusform>
            <numerusform>%Ln строк в %1 делят целевую строку с вновь назначенными: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>принят %Ln конфликт</numerusform>
            <numerusform>приняты %Ln конфликта</numerusform>
            <numerusform>принято %Ln конфликтов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Подтверждена %Ln строка</numerusform>
            <numerusform>Подтверждены %Ln строки</numerusform>
            <numerusform>Подтверждено %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln строка подтверждена как снятая с производства</numerusform>
            <numerusform>%Ln строки подтверждены как снятые с производства</numerusform>
            <numerusform>%Ln строк подтверждено как снятые с производства</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>назначена %Ln строка</numerusform>
            <numerusform>назначены %Ln строки</numerusform>
            <numerusform>назначено %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>снято назначение %Ln строки</numerusform>
            <numerusform>снято назначение %Ln строк</numerusform>
            <numerusform>снято назначение %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>изменено назначение диапазонов значений %Ln строки</numerusform>
            <numerusform>изменено назначение диапазонов значений %Ln строк</numerusform>
            <numerusform>изменено назначение диапазонов значений %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>разрешён конфликт %Ln строки</numerusform>
            <numerusform>разрешён конфликт %Ln строк</numerusform>
            <numerusform>разрешён конфликт %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>изменена %Ln строка</numerusform>
            <numerusform>изменены %Ln строки</numerusform>
            <numerusform>изменено %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>строка %1 → %2 подтверждена</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>строка %1 → %2 назначена</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (раньше %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>строка %1 подтверждена как снятая с производства (раньше %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>строка %1 подтверждена как снятая с производства</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>назначение строки %1 снято (раньше %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Проект добавлен</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Проект удалён</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Целевой проект добавлен</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Целевой проект удалён</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Порядок целевых проектов изменён</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Условия изменены</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Сопоставление переменных изменено</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Версии изменены</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Состояние изменено</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 в %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 в %Ln проекте</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
            <numerusform>%1 в %Ln проектах</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Пропустить</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Готово</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, строка %2: запись %3 назначения диапазонов значений не имеет вида {NAME=ЗНАЧЕНИЕ} -&gt; номер строки: &quot;%4&quot;. Исправьте её или раскройте заново.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, строка %2: назначение диапазонов значений называет строку %3, но у строки нет целевого проекта. Назначьте её или очистите текст.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, строка %2: назначение диапазонов значений называет строку %3, которой нет в %4. Исправьте его или раскройте заново.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: таблицу целевого проекта %2 не удаётся прочитать, его назначения диапазонов значений не проверены. Проверьте папку целевых проектов (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Проверка назначений диапазонов значений</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>Проверено %Ln назначение диапазонов значений</numerusform>
            <numerusform>Проверено %Ln назначения диапазонов значений</numerusform>
            <numerusform>Проверено %Ln назначений диапазонов значений</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>без замечаний</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln замечание</numerusform>
            <numerusform>%Ln замечания</numerusform>
            <numerusform>%Ln замечаний</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (прервано): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Согласование выпусков каталогов</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Вышел новый каталог, и каждую строку старого выпуска нужно перенести на строку нового. Программа предлагает, вы проверяете и подтверждаете.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Недавно открытые:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Новое &amp;сопоставление...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Создаёт новый файл сопоставления из двух выпусков каталога</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>О&amp;ткрыть...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Открывает файл сопоставления</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Отк&amp;рыть пример каталога</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Открывает собственный файл сопоставления для прилагаемого примера каталога</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Со&amp;хранить</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Записывает все изменения в файл сопоставления</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Сохранить &amp;как...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Записывает в другой файл сопоставления</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Закрывает файл сопоставления</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Папки каталогов...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Выбирает папки старого и нового выпусков каталога</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>Общая &amp;копия...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Выбирает копию, через которую несколько человек работают над этим сопоставлением</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Принимает то, что опубликовали другие</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>О&amp;публиковать</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Передаёт свои изменения другим</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Взять папки себе...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Сообщает другим, какие папки вы редактируете сами</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>Кто &amp;над чем работает</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Показывает, кто держит сопоставление открытым и кому принадлежат какие папки</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Импортировать таблицы...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Делает из папки с файлами CSV проекты каталога</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>&amp;Экспортировать строки...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Записывает все строки выпуска с их назначениями в файл CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>От&amp;чёт...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Записывает в PDF или HTML, насколько готов выпуск и почему строки открыты</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Завершает программу</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Отменяет последний шаг</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>По&amp;вторить</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Снова выполняет отменённый шаг</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>По&amp;дтвердить строки...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Подтверждает назначение выделенных или всех показанных строк за один шаг</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Подтвердить строки &amp;без цели как снятые с производства...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Из выделенных или всех показанных строк подтверждает строки без цели как снятые с производства</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Сня&amp;ть назначения...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Снимает назначение выделенных или всех показанных строк за один шаг</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Снять назначения &amp;и подтвердить...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Выделенные или все показанные строки сняты с производства: снимает назначение и подтверждает за один шаг</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>На&amp;значить все проекты...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Ищет назначения для всех строк каталога; подтверждённое остаётся</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>П&amp;роверить назначения диапазонов значений</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Сравнивает все тексты диапазонов значений с таблицами целевых проектов</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>С&amp;крипт...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Открывает окно, в котором пишут и выполняют скрипты</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>На&amp;стройки...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Язык, шрифт, клавиши, резервное копирование</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Следующая открытая строка</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Переходит к следующей строке, требующей решения, в том числе в следующем проекте</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Предыдущая &amp;открытая строка</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Переходит к предыдущей строке, требующей решения, в том числе в предыдущем проекте</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Перейти к строке...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Ищет строку проекта по номеру или обозначению</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Другая таблица</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Переключает между старой и новой таблицей</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Найти...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Находит проекты, строки, команды и настройки по частям слов</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Шаблоны различий</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Показывает, чем открытые строки отличаются от своих предложений</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Старое и новое</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Показывает старые и новые значения строки рядом, а также её кандидатов</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Подтвердить шаблон...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Подтверждает все строки выбранного шаблона за один шаг</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Исключить строку</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Строка не подтверждается вместе с другими строками шаблона</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>С&amp;ледующая строка шаблона</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Переходит к следующей открытой строке выбранного шаблона</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>П&amp;редыдущая строка шаблона</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Переходит к предыдущей открытой строке выбранного шаблона</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Сле&amp;дующий шаблон</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Выбирает следующий шаблон списка</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Сначала &amp;наименее надёжные</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Открытые строки идут по опасности ошибки, а не по месту</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Соседс&amp;тво</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Показывает, где назначения соседних строк не согласуются</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>П&amp;оправить строки</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Исправляет выбранную находку соседства за один шаг</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Замены...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Согласует замены значений для выпуска каталога или отзывает их</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Выборка...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Отбирает строки выбранного шаблона или выделенные строки, которые оцениваются по одной</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Вы&amp;борка: верно</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Показанная строка выборки назначена верно</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Выбор&amp;ка: неверно</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Показанная строка выборки назначена неверно; выборка завершается</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Кандидат &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Назначает строке этого кандидата и подтверждает его</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Кандидат &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Кандидат &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Кандидат &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Кандидат &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Диапазон значений строки</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Показывает, у каких значений старого диапазона есть новые строки</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Кон&amp;фликты</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Показывает строки, которые две стороны решили по-разному</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Следующий нерешённый конфликт</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Переходит к следующей строке, конфликт которой ещё не решён</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Конфликт: своё решение</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>В этом конфликте действует своё решение</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Конфликт: другое решение</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>В этом конфликте действует решение другой стороны</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Конфликт: решить заново</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Ни одно из решений не действует; строка снова без цели</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Строит показ заново: дерево, статистику, таблицы с диска</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Открывает руководство на нужном месте</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Клавиши...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Показывает и изменяет клавиши всех команд</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>Подсказка к этому &amp;месту</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Показывает подсказку там, куда направлены клавиши: в таблице — почему строка в этом состоянии</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Экскурсия</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Показывает за несколько шагов, где что находится</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>Об этой &amp;программе</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Версия и папки</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Шаги...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Показывает все шаги, включая прошлые сеансы, и отменяет отдельные</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Следующий проект с открытыми строками</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Переходит к следующему проекту, где нужно решение</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Предыдущий проект с открытыми строками</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Переходит к предыдущему проекту, где нужно решение</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Фильтр по всем строкам</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Выбирает строки всех проектов по состоянию, причине, различию и автору; F8 проходит по ним</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>П&amp;ечать...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Показывает страницы видимой таблицы и печатает их</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Показывает страницы отчёта и печатает их</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Печать отчёта...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Перенять решения...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Перенимает из прежнего сопоставления одним шагом то, что уже подтверждено для того же старого выпуска</translation>
    </message>
</context>
</TS>
