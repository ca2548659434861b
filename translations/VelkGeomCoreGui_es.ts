<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Quitar todos los filtros de columna</translation>
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
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Buscar en la tabla</translation>
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
        <source>Nicht gefunden</source>
        <translation>No encontrado</translation>
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
        <source>Tabelle %1</source>
        <translation>Tabla %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Resultado anterior (Mayús+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Rango de valores (%1 valores): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Muestra las líneas cuyo valor contiene el texto. Con =, &lt;, &lt;=, &gt; o &gt;= delante se compara.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Asignación a una variable de la tabla de destino</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>se cumplen ambas comparaciones</translation>
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
    <message>
        <source>ungleich</source>
        <translation>distinto de</translation>
    </message>
</context>
</TS>
