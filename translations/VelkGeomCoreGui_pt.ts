<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkGeomCoreGui</name>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 de %Ln projeto</numerusform>
            <numerusform>%1 de %Ln projetos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 de %Ln linha</numerusform>
            <numerusform>%1 de %Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e) gefunden</source>
        <translation>
            <numerusform>%Ln projeto encontrado</numerusform>
            <numerusform>%Ln projetos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>(leer)</source>
        <translation>(vazio)</translation>
    </message>
    <message>
        <source>Alle Spalten einblenden</source>
        <translation>Mostrar todas as colunas</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Remover todos os filtros de coluna</translation>
    </message>
    <message>
        <source>Alle außer den gewählten</source>
        <translation>Todos exceto os escolhidos</translation>
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
        <source>Aufbau des Suchindex</source>
        <translation>Criação do índice de pesquisa</translation>
    </message>
    <message>
        <source>Bedingung entfernen</source>
        <translation>Remover condição</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Adicionar condição</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Kataloge kann nicht gelesen werden.</source>
        <translation>Não é possível ler o diretório dos catálogos.</translation>
    </message>
    <message>
        <source>Der Suchindex konnte nicht aufgebaut werden: %1</source>
        <translation>Não foi possível criar o índice de pesquisa: %1</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut.</source>
        <translation>O índice de pesquisa ainda está sendo criado.</translation>
    </message>
    <message>
        <source>Der Suchindex wird noch aufgebaut; bisher: %1</source>
        <translation>O índice de pesquisa ainda está sendo criado; até agora: %1</translation>
    </message>
    <message>
        <source>Die Suche ist fehlgeschlagen: %1</source>
        <translation>A pesquisa falhou: %1</translation>
    </message>
    <message>
        <source>Die Suche steht nicht zur Verfügung.</source>
        <translation>A pesquisa não está disponível.</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Projekt(e); es gibt mehr. Suchen Sie genauer.</source>
        <translation>
            <numerusform>O primeiro %Ln projeto; há mais. Pesquise com mais precisão.</numerusform>
            <numerusform>Os primeiros %Ln projetos; há mais. Pesquise com mais precisão.</numerusform>
        </translation>
    </message>
    <message>
        <source>Erneut versuchen</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Fixierung aufheben</source>
        <translation>Liberar colunas</translation>
    </message>
    <message>
        <source>Funktionen</source>
        <translation>Funções</translation>
    </message>
    <message>
        <source>Gefundene Projekte</source>
        <translation>Projetos encontrados</translation>
    </message>
    <message>
        <source>Gesucht wird in dem, was auf dieser Maschine liegt.
%1</source>
        <translation>Pesquisa-se no que está nesta máquina.
%1</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Procurar na tabela</translation>
    </message>
    <message>
        <source>Keine Zeile passt zu den Spaltenfiltern</source>
        <translation>Nenhuma linha corresponde aos filtros de coluna</translation>
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
        <translation>Nome, norma, designação ou valor</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger Bedingungen.</source>
        <translation>Nada encontrado. Pesquise com outras palavras ou menos condições.</translation>
    </message>
    <message>
        <source>Nur in %1 suchen</source>
        <translation>Pesquisar apenas em %1</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Ocorrência seguinte (F3)</translation>
    </message>
    <message>
        <source>Operatoren</source>
        <translation>Operadores</translation>
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
        <source>Spalte ausblenden</source>
        <translation>Ocultar coluna</translation>
    </message>
    <message>
        <source>Spalte nach links</source>
        <translation>Mover coluna para a esquerda</translation>
    </message>
    <message>
        <source>Spalte nach rechts</source>
        <translation>Mover coluna para a direita</translation>
    </message>
    <message>
        <source>Spalten bis hier fixieren</source>
        <translation>Fixar colunas até aqui</translation>
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
        <source>Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu.</source>
        <translation>Pesquise palavras ou adicione condições.</translation>
    </message>
    <message>
        <source>Suchwörter</source>
        <translation>Palavras de pesquisa</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Unbekannter Fehler</source>
        <translation>Erro desconhecido</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Comparação</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Ocorrência anterior (Shift+F3)</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Werte der Spalte %1</source>
        <translation>Valores da coluna %1</translation>
    </message>
    <message>
        <source>Wertebereich (Werte: %1): %2</source>
        <translation>Intervalo de valores (valores: %1): %2</translation>
    </message>
    <message>
        <source>Wird gesucht ...</source>
        <translation>Pesquisando ...</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen; ! davor kehrt um, = allein findet leere Werte. &amp; verlangt beides, | eines von beiden. Alt+Pfeil nach unten zeigt die Werte.</source>
        <translation>Mostra as linhas cujo valor contém o texto. Com =, &lt;, &lt;=, &gt; ou &gt;= antes, compara-se; ! antes nega, = sozinho encontra valores vazios. &amp; exige ambos, | um dos dois. Alt+seta para baixo mostra os valores.</translation>
    </message>
    <message>
        <source>Zuweisung an eine Variable der Zieltabelle</source>
        <translation>Atribuição a uma variável da tabela de destino</translation>
    </message>
    <message>
        <source>beginnt mit</source>
        <translation>começa com</translation>
    </message>
    <message>
        <source>beide Vergleiche gelten</source>
        <translation>ambas as comparações são válidas</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>até</translation>
    </message>
    <message>
        <source>der Vergleich gilt nicht</source>
        <translation>a comparação não é válida</translation>
    </message>
    <message>
        <source>einer der Vergleiche gilt</source>
        <translation>uma das comparações é válida</translation>
    </message>
    <message>
        <source>enthält</source>
        <translation>contém</translation>
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
        <translation>maior que</translation>
    </message>
    <message>
        <source>größer oder gleich</source>
        <translation>maior ou igual a</translation>
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
        <translation>menor ou igual a</translation>
    </message>
    <message>
        <source>mal</source>
        <translation>vezes</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>menos</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>mais</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln seltenere(r) Wert(e)</source>
        <translation>
            <numerusform>e %Ln valor mais raro</numerusform>
            <numerusform>e %Ln valores mais raros</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere Zeile(n)</source>
        <translation>
            <numerusform>e mais %Ln linha</numerusform>
            <numerusform>e mais %Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>ungleich</source>
        <translation>diferente de</translation>
    </message>
    <message>
        <source>von–bis</source>
        <translation>de–até</translation>
    </message>
</context>
</TS>
