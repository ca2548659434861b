<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 из %Ln проекта</numerusform>
            <numerusform>%1 из %Ln проектов</numerusform>
            <numerusform>%1 из %Ln проектов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 из %Ln строки</numerusform>
            <numerusform>%1 из %Ln строк</numerusform>
            <numerusform>%1 из %Ln строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>Найден %Ln проект</numerusform>
            <numerusform>Найдено %Ln проекта</numerusform>
            <numerusform>Найдено %Ln проектов</numerusform>
        </translation>
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
        <source>(leer)</source>
        <translation>(пусто)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Показать все столбцы</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Снять все фильтры столбцов</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Все, кроме выбранных</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Продолжено с начала таблицы</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Продолжено с конца таблицы</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Построение поискового индекса</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Удалить условие</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Добавить условие</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Не удаётся прочитать каталог с каталогами.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Не удалось построить поисковый индекс: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>Поисковый индекс ещё строится.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>Поисковый индекс ещё строится; пока: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>Ошибка поиска: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>Поиск недоступен.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>Первый %Ln проект; есть и другие. Уточните поиск.</numerusform>
            <numerusform>Первые %Ln проекта; есть и другие. Уточните поиск.</numerusform>
            <numerusform>Первые %Ln проектов; есть и другие. Уточните поиск.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Снять закрепление</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Функции</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Найденные проекты</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Поиск ведётся в том, что есть на этом компьютере.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Найти в таблице</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Ни одна строка не соответствует фильтрам столбцов</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Логика</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Фильтр по значениям ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Имя, стандарт, обозначение или значение</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Ничего не найдено. Попробуйте другие слова или меньше условий.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Искать только в %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Следующее совпадение (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Операторы</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Отменить сортировку</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Сортировать столбец по убыванию</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Сортировать столбец по возрастанию</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Скрыть столбец</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Столбец влево</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Столбец вправо</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Закрепить столбцы до этого места</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Подогнать ширину столбцов</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Фильтр столбца</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Фильтр столбца %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Закрыть поиск (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Найти...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Ищите слова или добавьте условия.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Слова для поиска</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Таблица %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Неизвестная ошибка</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Переменная</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Предыдущее совпадение (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>значение</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Значения столбца %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Диапазон значений (значений: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Идёт поиск ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Показывает строки, значение которых содержит текст. Знаки =, &lt;, &lt;=, &gt; или &gt;= перед ним сравнивают; ! перед ним означает отрицание, одно = находит пустые значения. &amp; требует обоих, | одного из двух. Alt+стрелка вниз показывает значения.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Присваивание переменной целевой таблицы</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>начинается с</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>верны оба сравнения</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>до</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>сравнение неверно</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>верно одно из сравнений</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>содержит</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>разделить на</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>равно</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>больше</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>больше или равно</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>в степени</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>меньше</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>меньше или равно</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>умножить на</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>минус</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>и ещё %Ln более редкое значение</numerusform>
            <numerusform>и ещё %Ln более редких значения</numerusform>
            <numerusform>и ещё %Ln более редких значений</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>и ещё %Ln строка</numerusform>
            <numerusform>и ещё %Ln строки</numerusform>
            <numerusform>и ещё %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>не равно</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>от–до</translation>
    </message>
</context>
</TS>
