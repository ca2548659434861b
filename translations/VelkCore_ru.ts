<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>заголовок раздела без конца</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>кавычка без конца; текст берётся как есть</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>В документе нет значения.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Это не JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Это не обычный файл.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Нет закрывающей кавычки текста.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Нет имени элемента.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Копия отличается от оригинала.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Управляющий символ в тексте должен быть записан escape-последовательностью.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Текст содержит половину суррогатной пары.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Текст содержит неизвестную escape-последовательность.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Текст не в UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Нет значения.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>У числа нет цифр после точки.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>У числа нет цифр в показателе степени.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>У числа нет цифр.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Число слишком велико.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>После \u должны стоять четыре шестнадцатеричные цифры.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>После документа стоит ещё что-то.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>После имени элемента нет двоеточия.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>После элемента нет запятой или }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>После значения списка нет запятой или ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>текст после кавычек; всё берётся как есть</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>строка %1, столбец %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>это каталог</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>это не расширение: нет VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>имя содержит символ NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>текст после заголовка раздела не учитывается</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>файл в UTF-16; сохраните его в UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>расширение сделано для версии %1, а это %2; скомпилируйте его заново</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>строки кончаются одними возвратами каретки; сохраните файл с переводами строк</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>неизвестная escape-последовательность %1 берётся как есть</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>только для чтения</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>не UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ни раздел, ни ключ, ни комментарий</translation>
    </message>
</context>
</TS>
