<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Строка %1</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Другие значения диапазонов относятся к другой цели.</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Строка с этими значениями есть и в другом целевом проекте.
  Проект: %1
  Строка: %2</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Целевой проект называется иначе, чем исходный, и ни одно назначение на него не подтверждено.
  Исходный проект: %1
  Целевой проект: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>В тексте нет закрывающего апострофа</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Слишком глубокая вложенность выражения</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Текст пуст</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Функция %1 неизвестна</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Обозначения стандарта различаются.
  Старое обозначение: %1
  Новое обозначение: %2</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Не удалось прочитать таблицу целевого проекта.
  Проект: %1</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Переменной %1 нет в целевой таблице</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Переменная %1 неизвестна</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Значения переменной %1 различаются.
  Старое значение: %2
  Новое значение: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>Целевая строка уже подтверждена для другой строки.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>У большинства строк в целевом проекте другие значения.
  Целевой проект: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Назначенной строки нет в целевой таблице.
  Проект: %1
  Строка: %2</translation>
    </message>
    <message>
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Текст в формуле для %1 длиннее %2 символов и остаётся без значения</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Условие целевого проекта не выполнено.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Условие целевого проекта содержит ошибку.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Условие должно быть сравнением</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Формула должна присваивать значение переменной</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Ожидалось: %1, найдено: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Ожидается присваивание переменной %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Неверное число аргументов функции %1</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Здесь ожидается сравнение, а не значение</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Здесь ожидается значение, а не сравнение</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>У источника и цели нет общей переменной со значением.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Эти значения есть и у других строк исходной таблицы.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Эти значения есть и у других строк целевой таблицы.</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Символ %1: %2</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Слишком много диапазонов целевой таблицы пересекаются, чтобы сравнить их все.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Слишком мало значений строки имеют соответствие в целевой таблице.
  Без соответствия: %1</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>конец</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>оператор или конец</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>имя переменной</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>значение</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>закрывающая скобка</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>содержит ошибки!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>нет значения</translation>
    </message>
</context>
</TS>
