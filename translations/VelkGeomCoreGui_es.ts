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
        <source>In der Tabelle suchen</source>
        <translation>Buscar en la tabla</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copiar</translation>
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
</context>
</TS>
