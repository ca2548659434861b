<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 лежит вне каталога и не записывается; исправьте «path» в дескрипторе или удалите ссылку</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 с десятичной запятой</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: это часть %2 другой работы, чем %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>кавычки внутри ячеек считаются символами, впервые в строке %1, столбце %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>дата</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>дата и время</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Решения, перенятые из %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>проекты в частях: %1 (разных: %2), во всей работе: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>нет части %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>часть %1 есть несколько раз (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>топология (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>логическое значение</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>диапазон значений (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>число</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>вычисляемое (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>папку не удаётся прочитать</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>не удаётся создать папку</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>это не часть, записанная командой velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>это не обычный файл</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>ключ «%1» отсутствует или повторяется: %2 из %Ln строки</numerusform>
            <numerusform>ключ «%1» отсутствует или повторяется: %2 из %Ln строк</numerusform>
            <numerusform>ключ «%1» отсутствует или повторяется: %2 из %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>условие «%1» для %2 не разбирается; то, что назначено, ненадёжно</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>у столбца %1 нет имени, теперь он называется «%2»</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>столбец %1 снова носит имя «%2» и теперь называется «%3»</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>столбец «%1» по дескриптору: %2; его ячейки похожи на: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>столбца «%1» больше нет</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>таблица прежнего импорта не читается, номера её строк не удалось бы сохранить; исправьте её или удалите, чтобы начать заново</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>в таблице документов нет столбца %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>таблица проекта не читается</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>таблица %1 не читается; строки проекта остаются без изменений</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>таблица %1 не читается; то, что назначено без неё, ненадёжно</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>строка кончается одним возвратом каретки; сохраните файл с переводами строки</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>ячейки разделены точками с запятой</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>ячейки разделены табуляцией</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>единственный столбец называется «%1»; если их несколько, укажите их разделитель через --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>первая строка похожа на данные; она считается именами столбцов, поэтому поставьте перед ней строку с именами</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>такого каталога нет</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>дал бы ту же таблицу, что и %1; переименуйте один из файлов</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>столбца «%1» нет</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>нет ни одной части</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>в ней не столько проектов, сколько она называет</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>целое число</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>прочитано как %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>внутреннее (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>ни у одного проекта нет даты</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>ключевой столбец не найден; номер строки — её место в файле</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>не читается: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>не записывается: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>не открывается: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>новый столбец «%1»</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>различаются только регистром букв: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>если кодировка другая, укажите её через --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
