<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 está fora do catálogo e não é escrito; corrija "path" no descritor, ou remova a ligação</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 com vírgula decimal</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: é a parte %2 de um trabalho diferente de %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>as aspas dentro das células contam como caracteres, primeiro na linha %1, coluna %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>data</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>data e hora</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Decisões retomadas de %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projetos nas partes: %1 (diferentes: %2), em todo o trabalho: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>falta a parte %1</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>a parte %1 existe várias vezes (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologia (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>valor lógico</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>intervalo de valores (%1)</translation>
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
        <translation>não é possível ler o diretório</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>não é possível criar o diretório</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>não é uma parte escrita por velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>a chave "%1" falta ou repete-se em %2 de %Ln linha</numerusform>
            <numerusform>a chave "%1" falta ou repete-se em %2 de %Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>a condição "%1" de %2 não se consegue ler; o que foi atribuído não é seguro</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>a coluna %1 não tem nome e chama-se agora "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>a coluna %1 tem outra vez o nome "%2" e chama-se agora "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>a coluna "%1" é, segundo o descritor: %2; as suas células parecem: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>a coluna "%1" deixou de existir</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>não é possível ler a tabela da importação anterior, pelo que os ids das suas linhas não se conservariam; corrija-a, ou elimine-a para recomeçar</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>a tabela de documentos não tem a coluna %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>não é possível ler a tabela do projeto</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>não é possível ler a tabela de %1; as linhas do projeto ficam como estão</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>não é possível ler a tabela de %1; o que foi atribuído sem ela não é seguro</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>a linha termina só com um retorno de carro; guarde o ficheiro com mudanças de linha</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>as células estão separadas por pontos e vírgulas</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>as células estão separadas por tabulações</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>a única coluna chama-se "%1"; se forem várias, indique o separador com --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>a primeira linha parece ter dados; conta como nomes das colunas, por isso ponha antes dela uma linha com nomes</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>este catálogo não existe</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>daria a mesma tabela que %1; mude o nome de uma delas</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>não há nenhuma coluna "%1"</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>não há nenhuma parte</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>não contém tantos projetos como indica</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>número inteiro</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>lido como %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>interno (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>nenhum projeto tem data</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>nenhuma coluna de chave encontrada; o id de uma linha é o seu lugar no ficheiro</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>não se pode ler: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>não se pode escrever: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>não se pode abrir: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nova coluna "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>só diferem em maiúsculas e minúsculas: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>se tiver outra codificação, indique-a com --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
