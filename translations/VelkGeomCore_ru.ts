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
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" не является адресом базы связей. Возможны sqlite:ФАЙЛ и postgresql://ПОЛЬЗОВАТЕЛЬ@УЗЕЛ:ПОРТ/БАЗА.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1: «supports» не может быть больше «cases»</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1: допускаются только объекты</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1: слишком глубокая вложенность значений</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 нет в ревизии %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1: запись «sourcePath» пуста</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1: нет записи «%2»</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 — база данных другой программы</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 не является поисковым индексом и не может быть заменён</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1: должно быть [исходная строка, целевая строка, состояние], затем расширенный текст, если он есть, затем true для конфликта; строки считаются с 0, -1 — целевой строки нет</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1: должен быть объект</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1: должен быть текст</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1: должен быть список</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1: нужны переменная и тексты «before» и «after» либо десятичные числа «factor» и «offset»</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1: должно быть целое число от 0 до 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1: должно быть true или false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1: нужен вид «var» с «source» и «target» или вид «value» с «formula»</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1: исходная строка %2 названа ещё раз</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Читается ревизия %2, насколько она есть на этой машине.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Неизвестно, зафиксированы ли изменения: проверьте перед повторением.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: цель с пустым «path» теперь стоит в конце</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln ячейка вместо %1, как в заголовке</numerusform>
            <numerusform>%Ln ячейки вместо %1, как в заголовке</numerusform>
            <numerusform>%Ln ячеек вместо %1, как в заголовке</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>ещё %Ln</numerusform>
            <numerusform>ещё %Ln</numerusform>
            <numerusform>ещё %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>ещё %Ln ошибка</numerusform>
            <numerusform>ещё %Ln ошибки</numerusform>
            <numerusform>ещё %Ln ошибок</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Прервано: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Другие значения диапазонов относятся к другой цели.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>начало, конец и шаг «%1» должны быть числами не длиннее 15 цифр</translation>
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
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Не удаётся запустить программу %1 для репозитория каталога: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Репозиторий %1 не отвечает: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Репозиторий %1 требует входа: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Скрипт не читается: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Скрипт остановлен</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Скрипт остановлен: ему понадобилось больше %1 МБ памяти</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Скрипт остановлен: он работал дольше %1 с</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Скрипт остановлен: за %1 с он не вызвал ни одного объекта</translation>
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
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Каталог %1 не помещается в кэш размером %2 МБ; поиск его не знает</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>Выпуск каталога</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>В выпуске каталога sourceDate указан как «%1».</translation>
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
        <translation>Текст пуст</translation>
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
        <translation>Нет драйвера %1 для базы связей</translation>
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
        <translation>Оператор содержит нулевой символ</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Вывод не записывается: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Файл изменился во время чтения.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Функция %1 неизвестна</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Группы "%1" нет в базе связей, или %2 в неё не входит</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>База связей %1 не отвечает, соединение с ней прекращено</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>Базы связей %1 нет</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>База связей %1 имеет форму %2, эта программа знает только форму %3; нужна более новая версия</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>Базу связей %1 нельзя открыть: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>База связей работает</translation>
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
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>Таблицы %1 нет в базе связей</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Не удалось прочитать таблицу целевого проекта.
  Проект: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Таблицы базы связей %1 нельзя создать или обновить: %2</translation>
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
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>Соединение с базой связей %1 восстановлено</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>Соединение с базой связей %1 прервано: %2</translation>
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
        <translation>Целевая строка уже подтверждена для другой строки.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>Удалённой строки %1 больше нет в журнале базы связей; вероятно, она уже восстановлена</translation>
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
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Изменения потеряны вместе с соединением с базой связей; их нужно повторить</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Номер ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Текст в формуле для %1 длиннее %Ln символа и остаётся без значения</numerusform>
            <numerusform>Текст в формуле для %1 длиннее %Ln символов и остаётся без значения</numerusform>
            <numerusform>Текст в формуле для %1 длиннее %Ln символов и остаётся без значения</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Ещё работает другой скрипт</translation>
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
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Файл сопоставления должен содержать объект.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Он стоит между двумя выпусками каталога с одной датой.</translation>
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
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Нет соединения с базой связей. Она выбирается в настройках.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>База данных ссылок не подключена.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Неверное число аргументов функции %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Ошибка базы связей: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Для каталога "%1" не задан репозиторий; из его имени адрес не получается</translation>
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
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>После документа стоит байт со значением 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>В %1 нет базы связей, или она более старой формы. Она создаётся или обновляется при первой записи.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>В адресе базы связей стоит пароль. Ему место в файле паролей или в PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Нет ответа от %1 за %2 с</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Ни одна строка целей не подходит к этой.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Незафиксированные изменения потеряны (операторов: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Совпадает только благодаря предложенным условиям или назначениям переменных. Они действуют, как только подтверждена одна строка цели.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>У источника и цели нет общей переменной со значением.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>текст после закрывающей кавычки ячейки</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>текст, начало, количество</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>текст, искомое</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>текст, искомое, замена</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>сравнение, то, иначе</translation>
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
        <source>Wert</source>
        <translation>значение</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>значение, знаки</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>значение, значение, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Слишком глубокая вложенность значений.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>угол</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>число</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>число, знаки</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>число, делитель</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>число, число, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Символ %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>строка %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>строка %1, столбец %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Строка %1, символ %2: %3</translation>
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
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>десятичный знак — «.» или «,»</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>конец</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>у поля нет имени</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>поле «%1» встречается дважды</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>у проекта нет таблицы; её должна назвать лексема SACHM</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>проект не прочитан</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>у вычисляемого поля «%1» нет формулы</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>это адрес; читаются только файлы</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>в дескрипторе есть lineSubIdField без lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>элемент «%1» встречается дважды</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>имя файла содержит символ NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>в диапазоне «%1» для %2 слишком много значений (%3); просматривается лишь %Ln</numerusform>
            <numerusform>в диапазоне «%1» для %2 слишком много значений (%3); просматриваются лишь %Ln</numerusform>
            <numerusform>в диапазоне «%1» для %2 слишком много значений (%3); просматривается лишь %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>кавычки ячейки не парные</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>у условия нет имени</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>байты не в UTF-8; сохраните файл в UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>файл пуст; первая строка должна называть столбцы</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>условие фильтра «%1» не разбирается: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>формула вычисляемого столбца «%1» не разбирается: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>шаг «%1» не больше 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>у столбца нет имени</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>нет столбца «%1» из дескриптора</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>нет столбца «%1», который называет %2 в дескрипторе</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>столбец «%1» встречается дважды</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>файл блокировки рядом нельзя записать</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>в числах «%1» слишком много цифр</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>номер строки %1 уже у строки %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>эти вычисляемые столбцы нужны друг другу: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>кавычка внутри ячейки, которая с неё не начинается; возьмите всю ячейку в кавычки и удвойте внутренние</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>кавычка не закрыта</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>ожидается поле, то есть объект</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>ожидается объект с текстами</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>ожидается объект с элементом для каждого языка</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>ожидается объект</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>оператор или конец</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>ожидается текст</translation>
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
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>значение между точками с запятой пусто</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>ожидается условие, то есть объект</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>ожидается список условий</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>ожидается список полей</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>ожидается список текстов</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>ожидается число</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>ожидается целое число от 0 до 2147483647</translation>
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
        <source>ersetzt: %1</source>
        <translation>заменено: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>заблокировано: %1 на %2 (процесс %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>равно: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>это не текст в UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>нет значения</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>недействительный JSON: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>не читается: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>не открывается: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>строк больше, чем вмещает таблица</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>глубже 64 уровней</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>без соответствия: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>так же в %Ln другой строке</numerusform>
            <numerusform>так же в %Ln других строках</numerusform>
            <numerusform>так же в %Ln других строках</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" не существует; возможны: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>ожидается true или false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>неизвестный вид «%1»; известны %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>неизвестный тип «%1»; известны %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>различно: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Изменения записываются в базу связей</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>похоже: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>«%1» заканчивается ниже начала</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>у «%1» нет шага; запишите как 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>«%1» — адрес; читаются только файлы</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>«%1» — не дата; пишите её как 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>«%1» — не диапазон значений %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>«%1» — не читаемая папка</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>«%1» — не номер строки, то есть не целое число от 0 до 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>в «%1» нельзя писать</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» лежит вне каталогов; переместите туда или разрешите его папку</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» лежит вне «%2»; переместите туда или разрешите его папку</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>«%1» встречается не один раз; действует последняя запись.</translation>
    </message>
</context>
</TS>
