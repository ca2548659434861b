<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Снять все фильтры столбцов</translation>
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
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Найти в таблице</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Следующее совпадение (F3)</translation>
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
        <source>Tabelle %1</source>
        <translation>Таблица %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Предыдущее совпадение (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Диапазон значений (значений: %1): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Показывает строки, значение которых содержит текст. С =, &lt;, &lt;=, &gt; или &gt;= впереди выполняется сравнение.</translation>
    </message>
</context>
</TS>
