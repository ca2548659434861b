<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 está fuera del catálogo y no se escribe; corrija «path» en el descriptor o elimine el enlace</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 con coma decimal</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: es la parte %2 de otro trabajo que %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>las comillas dentro de las celdas se toman como caracteres, primero en la fila %1, columna %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>fecha y hora</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Decisiones tomadas de %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>proyectos en las partes: %1 (distintos: %2), en todo el trabajo: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>falta la parte %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>la parte %1 está varias veces (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topología (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>valor lógico</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>rango de valores (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>número</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>calculado (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>no se puede leer el directorio</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>no se puede crear el directorio</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>no es una parte escrita por velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>la clave «%1» falta o se repite en %2 de %Ln fila</numerusform>
            <numerusform>la clave «%1» falta o se repite en %2 de %Ln filas</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>la condición «%1» de %2 no se entiende; lo que se ha asignado no es seguro</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>la columna %1 no tiene nombre y ahora se llama «%2»</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>la columna %1 lleva otra vez el nombre «%2» y ahora se llama «%3»</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>la columna «%1» es según el descriptor: %2; sus celdas parecen: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>la columna «%1» ya no existe</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>no se puede leer la tabla de la importación anterior, por lo que no se conservarían los identificadores de sus filas; corríjala o elimínela para empezar de nuevo</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>la tabla de documentos no tiene la columna %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>no se puede leer la tabla del proyecto</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>no se puede leer la tabla de %1; las filas del proyecto quedan como están</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>no se puede leer la tabla de %1; lo que se ha asignado sin ella no es seguro</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>la fila termina solo con un retorno de carro; guarde el archivo con saltos de línea</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>las celdas están separadas por puntos y comas</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>las celdas están separadas por tabuladores</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>la única columna se llama «%1»; si son varias, indique su separador con --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>la primera fila parece contener datos; se toma como nombres de las columnas, así que ponga delante una fila con nombres</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>este catálogo no existe</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>daría la misma tabla que %1; cambie el nombre de una de ellas</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>no hay ninguna columna «%1»</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>no hay ninguna parte</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>no contiene tantos proyectos como indica</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>número entero</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>leído como %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>interno (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>ningún proyecto tiene fecha</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>no se ha encontrado ninguna columna clave; el identificador de una fila es su lugar en el archivo</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>columna nueva «%1»</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>solo se diferencian en mayúsculas y minúsculas: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>si tiene otra codificación, indíquela con --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
