<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>encabezado de sección sin fin</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>comillas sin cerrar; el texto vale tal como está</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>El documento no tiene ningún valor.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Esto no es JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Faltan las comillas de cierre de un texto.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Falta el nombre de una entrada.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>La copia difiere del original.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Un carácter de control en un texto debe escribirse como secuencia de escape.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Un texto contiene medio par sustituto.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Un texto contiene una secuencia de escape desconocida.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Un texto no es UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Falta un valor.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Un número no tiene cifras tras el punto.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Un número no tiene cifras en el exponente.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Un número no tiene cifras.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Un número es demasiado grande.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Tras \u debe haber cuatro cifras hexadecimales.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Hay algo detrás del documento.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Faltan los dos puntos tras el nombre de una entrada.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Falta una coma o } tras una entrada.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Falta una coma o ] tras un valor de lista.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>texto detrás de las comillas; todo vale tal como está</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>fila %1, columna %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>es un directorio</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>no es una extensión: falta VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>el nombre contiene un carácter NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>el texto tras el encabezado de sección no se tiene en cuenta</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>el archivo es UTF-16; guárdelo como UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>la extensión está hecha para la versión %1, esta es la %2; compílela de nuevo</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>los renglones terminan solo con retornos de carro; guarde el archivo con saltos de línea</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>la secuencia de escape desconocida %1 vale tal como está</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>no es UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ni sección, ni clave, ni comentario</translation>
    </message>
</context>
</TS>
