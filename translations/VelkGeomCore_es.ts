<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Fila %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" no es la dirección de una base de enlaces. Son posibles sqlite:ARCHIVO y postgresql://USUARIO@EQUIPO:PUERTO/BASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 no puede tener más «supports» que «cases»</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 solo puede contener objetos</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 contiene valores anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 no existe en la revisión %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 tiene vacía la entrada «sourcePath»</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 no tiene la entrada «%2»</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 es la base de datos de otro programa</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 no es un índice de búsqueda y no se puede reemplazar</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 debe ser [fila de origen, fila de destino, estado], después el texto ampliado, si lo hay, y después true en caso de conflicto; las filas cuentan desde 0, -1 es ninguna fila de destino</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 debe ser un objeto</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 debe ser un texto</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 debe ser una lista</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 debe nombrar una variable, y textos como «before» y «after» o números decimales como «factor» y «offset»</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 debe ser un número entero de 0 a 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 debe ser true o false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 debe ser del tipo «var» con «source» y «target», o del tipo «value» con «formula»</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 vuelve a nombrar la fila de origen %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. Se lee la revisión %2 en la medida en que está en esta máquina.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. No es seguro que los cambios se hayan confirmado: compruébelo antes de repetirlos.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: el destino con «path» vacío está ahora al final</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln celda en lugar de %1, como en la cabecera</numerusform>
            <numerusform>%Ln celdas en lugar de %1, como en la cabecera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln más</numerusform>
            <numerusform>%Ln más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln error más</numerusform>
            <numerusform>%Ln errores más</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Otros valores de los rangos pertenecen a otro destino.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>inicio, fin y paso de «%1» deben ser números de 15 cifras como máximo</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Otro proyecto de destino también tiene una fila con estos valores.
  Proyecto: %1
  Fila: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>No se puede iniciar el programa %1 para el repositorio del catálogo: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>El repositorio %1 no responde: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>El repositorio %1 exige iniciar sesión: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>No se puede leer el script: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>El script fue detenido</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>El script fue detenido: necesitó más de %1 MB de memoria</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>El script fue detenido: tardó más de %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>El script fue detenido: durante %1 s no llamó a ningún objeto</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>El proyecto de destino se llama distinto que el de origen, y ninguna asignación hacia él está confirmada.
  Proyecto de origen: %1
  Proyecto de destino: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Falta la comilla de cierre del texto</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>La expresión está anidada a demasiada profundidad</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>El catálogo %1 no cabe en la caché de %2 MB; la búsqueda no lo conoce</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>La versión del catálogo</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>La versión del catálogo indica «%1» como su sourceDate.</translation>
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
        <translation>El texto está vacío</translation>
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
        <translation>Falta el controlador %1 para la base de enlaces</translation>
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
        <translation>La instrucción contiene un carácter nulo</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>No se puede escribir la salida: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>El archivo cambió mientras se leía.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La función %1 es desconocida</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>El grupo "%1" no existe en la base de enlaces, o %2 no pertenece a él</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>La base de enlaces %1 no responde, se ha abandonado la conexión con ella</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>La base de enlaces %1 no existe</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>La base de enlaces %1 tiene la forma %2, este programa solo conoce la forma %3; se necesita una versión más reciente</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>La base de enlaces %1 no se puede abrir: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>La base de enlaces está trabajando</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Las denominaciones de la norma son distintas.
  Denominación anterior: %1
  Denominación nueva: %2</translation>
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
        <translation>La tabla %1 no existe en la base de enlaces</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>No se pudo leer la tabla del proyecto de destino.
  Proyecto: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Las tablas de la base de enlaces %1 no se pueden crear o actualizar: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variable %1 no existe en la tabla de destino</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>La variable %1 es desconocida</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>La conexión con la base de enlaces %1 se ha restablecido</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>La conexión con la base de enlaces %1 se ha interrumpido: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Los valores de la variable %1 son distintos.
  Valor anterior: %2
  Valor nuevo: %3</translation>
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
        <translation>La fila de destino ya está confirmada para otra fila.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>La fila borrada %1 ya no está en el registro de la base de enlaces; probablemente ya se ha restaurado</translation>
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
        <translation>La mayoría de las filas tiene otros valores en el proyecto de destino.
  Proyecto de destino: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>La fila asignada no existe en la tabla de destino.
  Proyecto: %1
  Fila: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Los cambios se han perdido con la conexión a la base de enlaces; hay que repetirlos</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Número ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Un texto de la fórmula de %1 supera %Ln carácter y queda sin valor</numerusform>
            <numerusform>Un texto de la fórmula de %1 supera los %Ln caracteres y queda sin valor</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Todavía se ejecuta otro script</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>No se cumple una condición del proyecto de destino.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Una condición de un proyecto de destino es errónea.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Una condición debe ser una comparación</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Una fórmula debe asignar un valor a una variable</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Un archivo de mapeo debe contener un objeto.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Está entre dos versiones del catálogo de la misma fecha.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Se esperaba %1, se encontró %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Se espera una asignación a la variable %1</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>No hay conexión con una base de enlaces. Se elige en la configuración.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>No hay ninguna base de datos de enlaces conectada.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Número de argumentos incorrecto para la función %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Error de la base de enlaces: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>No hay ningún repositorio definido para el catálogo "%1"; su nombre no da una dirección</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Aquí se espera una comparación, no un valor</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Aquí se espera un valor, no una comparación</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Detrás del documento hay un byte de valor 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>En %1 no hay una base de enlaces, o es de una forma anterior. Se crea o se renueva al escribir por primera vez.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>La dirección de la base de enlaces contiene una contraseña. Debe estar en el archivo de contraseñas o en PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Sin respuesta de %1 en %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Ninguna fila de los destinos corresponde a esta.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Los cambios no confirmados se han perdido (instrucciones: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Igual solo por condiciones o correspondencias de variables propuestas. Valen en cuanto se confirme una fila del destino.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>El origen y el destino no tienen ninguna variable común con valor.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>texto detrás de las comillas de cierre de una celda</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>texto, inicio, cantidad</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>texto, buscado</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>texto, buscado, reemplazo</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>comparación, entonces, si no</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Otras filas de la tabla de origen tienen estos valores.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Otras filas de la tabla de destino tienen estos valores.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>valor, decimales</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>valor, valor, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Los valores están anidados a demasiada profundidad.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>ángulo</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>número</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>número, decimales</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>número, divisor</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>número, número, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Carácter %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>fila %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>fila %1, columna %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Línea %1, carácter %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Demasiados rangos de la tabla de destino se solapan para compararlos todos.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Muy pocos valores de la fila tienen equivalente en la tabla de destino.
  Sin equivalente: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>el carácter decimal es «.» o «,»</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>el final</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>el campo no tiene nombre</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>el campo «%1» está dos veces</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>el proyecto no tiene tabla; su lexema SACHM debe indicarla</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>el proyecto no se ha leído</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>el campo calculado «%1» no tiene fórmula</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>es una dirección; solo se leen archivos</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>el descriptor tiene lineSubIdField sin lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>la entrada «%1» está dos veces</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>el nombre del archivo contiene un carácter NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>el rango «%1» de %2 tiene demasiados valores (%3); solo se recorre %Ln</numerusform>
            <numerusform>el rango «%1» de %2 tiene demasiados valores (%3); solo se recorren %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>las comillas de la celda no forman pares</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>la condición no tiene nombre</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>los bytes no son UTF-8; guarde el archivo como UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>el archivo está vacío; su primera fila debe nombrar las columnas</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>la condición de filtro «%1» no se entiende: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>la fórmula de la columna calculada «%1» no se entiende: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>el paso de «%1» no es mayor que 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>la columna no tiene nombre</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>falta la columna «%1» del descriptor</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>falta la columna «%1» que nombra %2 en el descriptor</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>la columna «%1» aparece dos veces</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>no se puede escribir el archivo de bloqueo de al lado</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>los números de «%1» tienen demasiadas cifras</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>el número de fila %1 ya es el de la fila %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>estas columnas calculadas se necesitan entre sí: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>una comilla dentro de una celda que no empieza por comilla; ponga toda la celda entre comillas y duplique las interiores</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>unas comillas no se cierran</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>se espera un campo, es decir, un objeto</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>se espera un objeto con textos</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>se espera un objeto con una entrada para cada idioma</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>se espera un objeto</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un operador o el final</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>se espera un texto</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>un nombre de variable</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>un valor</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>un valor entre los puntos y coma está vacío</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>se espera una condición, es decir, un objeto</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>se espera una lista de condiciones</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>se espera una lista de campos</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>se espera una lista de textos</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>se espera un número</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>se espera un número entero de 0 a 2147483647</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>un paréntesis de cierre</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>¡contiene errores!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>sustituido: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>bloqueado por %1 en %2 (proceso %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>igual: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>no es un texto en UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>ningún valor</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>JSON no válido: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>más filas de las que caben en una tabla</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>más de 64 niveles de profundidad</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>sin correspondencia: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>así en otra fila: %Ln</numerusform>
            <numerusform>así en otras %Ln filas</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" no existe; son posibles: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>se espera true o false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>clase desconocida «%1»; se conocen %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>tipo desconocido «%1»; se conocen %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>distinto: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Se escriben los cambios en la base de enlaces</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>parecido: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>«%1» termina por debajo de su inicio</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>«%1» no tiene paso; escríbalo como 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>«%1» es una dirección; solo se leen archivos</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>«%1» no es una fecha; escríbala como 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>«%1» no es un rango de valores de %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>«%1» no es un directorio legible</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>«%1» no es un número de fila, es decir, un entero de 0 a 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>no se puede escribir en «%1»</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» está fuera de los catálogos; muévalo allí o permita su directorio</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» está fuera de «%2»; muévalo allí o permita su directorio</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>«%1» aparece más de una vez; vale la última entrada.</translation>
    </message>
</context>
</TS>
