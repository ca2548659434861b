<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 de %Ln proyecto</numerusform>
            <numerusform>%1 de %Ln proyectos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 de %Ln fila</numerusform>
            <numerusform>%1 de %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln proyecto encontrado</numerusform>
            <numerusform>%Ln proyectos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Mostrar todas las columnas</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Quitar todos los filtros de columna</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Todos excepto los elegidos</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Se continuó desde el principio de la tabla</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Se continuó desde el final de la tabla</translation>
    </message>
    <message>
        <source>Aufbau des Suchindex</source>
        <translation>Creación del índice de búsqueda</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Quitar condición</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Añadir condición</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>No se puede leer el directorio de los catálogos.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>No se ha podido crear el índice de búsqueda: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>El índice de búsqueda aún se está creando.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>El índice de búsqueda aún se está creando; hasta ahora: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>La búsqueda ha fallado: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>La búsqueda no está disponible.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>El primer %Ln proyecto; hay más. Busque con más precisión.</numerusform>
            <numerusform>Los primeros %Ln proyectos; hay más. Busque con más precisión.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Quitar la fijación</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Proyectos encontrados</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Se busca en lo que hay en este equipo.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Buscar en la tabla</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Ninguna fila cumple los filtros de columna</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Logik</source>
        <translation>Lógica</translation>
    </message>
    <message>
        <source>Nach Werten filtern ...</source>
        <translation>Filtrar por valores ...</translation>
    </message>
    <message>
        <source>Name, Norm, Bezeichnung oder Wert</source>
        <translation>Nombre, norma, denominación o valor</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>No se ha encontrado nada. Busque con otras palabras o menos condiciones.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Buscar solo en %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Resultado siguiente (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operadores</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Quitar la ordenación</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Ordenar la columna de forma descendente</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Ordenar la columna de forma ascendente</translation>
    </message>
    <message>
        <source>Spalte ausblenden</source>
        <translation>Ocultar columna</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Mover columna a la izquierda</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Mover columna a la derecha</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Fijar columnas hasta aquí</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Ajustar el ancho de las columnas</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro de columna</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtro de columna %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Cerrar la búsqueda (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Buscar...</translation>
    </message>
    <message>
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Busque palabras o añada condiciones.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Palabras de búsqueda</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabla %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Resultado anterior (Mayús+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Valores de la columna %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Rango de valores (valores: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Buscando ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Muestra las filas cuyo valor contiene el texto. Con =, &lt;, &lt;=, &gt; o &gt;= delante se compara; ! delante lo niega, = solo busca valores vacíos. &amp; exige ambos, | uno de los dos. Alt+flecha abajo muestra los valores.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Asignación a una variable de la tabla de destino</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>empieza por</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>se cumplen ambas comparaciones</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>a</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>la comparación no se cumple</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>se cumple una de las comparaciones</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>geteilt durch</source>
        <translation>dividido por</translation>
    </message>
    <message>
        <source>gleich</source>
        <translation>igual a</translation>
    </message>
    <message>
        <source>größer</source>
        <translation>mayor que</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>mayor o igual que</translation>
    </message>
    <message>
        <source>hoch</source>
        <translation>elevado a</translation>
    </message>
    <message>
        <source>kleiner</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>kleiner oder gleich</source>
        <translation>menor o igual que</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>por</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>menos</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>más</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>y %Ln valor menos frecuente</numerusform>
            <numerusform>y %Ln valores menos frecuentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>y %Ln fila más</numerusform>
            <numerusform>y %Ln filas más</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>distinto de</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>de–a</translation>
    </message>
</context>
</TS>
