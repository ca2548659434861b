<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Remover todos os filtros de coluna</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Continuado no início da tabela</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Continuado no fim da tabela</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Procurar na tabela</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Ocorrência seguinte (F3)</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Anular a ordenação</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Ordenar a coluna por ordem decrescente</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Ordenar a coluna por ordem crescente</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Ajustar a largura das colunas</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro de coluna</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtro de coluna %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Fechar a procura (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Ocorrência anterior (Shift+F3)</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Intervalo de valores (%1 valores): %2</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Mostra linhas cujo valor contém o texto. Com =, &lt;, &lt;=, &gt; ou &gt;= antes, é comparado.</translation>
    </message>
</context>
</TS>
