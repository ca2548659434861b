<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Linha %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" não é o endereço de uma base de ligações. São possíveis sqlite:FICHEIRO e postgresql://UTILIZADOR@HOST:PORTA/BASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 não pode ter mais "supports" do que "cases"</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 só pode conter objetos</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 contém valores aninhados em demasiada profundidade</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 não existe na revisão %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 tem a entrada "sourcePath" vazia</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 não tem a entrada "%2"</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 é a base de dados de outro programa</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 não é um índice de pesquisa e não pode ser substituído</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 tem de ser [linha de origem, linha de destino, estado], depois o texto alargado, se houver, depois true para um conflito; as linhas contam a partir de 0, -1 é nenhuma linha de destino</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 tem de ser um objeto</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 tem de ser um texto</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 tem de ser uma lista</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 tem de indicar uma variável, e textos como "before" e "after" ou números decimais como "factor" e "offset"</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 tem de ser um número inteiro de 0 a 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 tem de ser true ou false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 tem de ser do tipo "var" com "source" e "target", ou do tipo "value" com "formula"</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 indica de novo a linha de origem %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. É lida a revisão %2, na medida em que está nesta máquina.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Não é certo que as alterações tenham sido confirmadas: verifique antes de repetir.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1: o destino com "path" vazio está agora no fim</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln célula em vez de %1 como no cabeçalho</numerusform>
            <numerusform>%Ln células em vez de %1 como no cabeçalho</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>mais %Ln</numerusform>
            <numerusform>mais %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>mais %Ln erro</numerusform>
            <numerusform>mais %Ln erros</numerusform>
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
        <translation>Outros valores dos intervalos pertencem a outro destino.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>início, fim e passo de "%1" devem ser números de 15 algarismos no máximo</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Outro projeto de destino também tem uma linha com estes valores.
  Projeto: %1
  Linha: %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Não é possível iniciar o programa %1 para o repositório do catálogo: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>O repositório %1 não responde: %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>O repositório %1 exige início de sessão: %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Não se pode ler o script: %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>O script foi parado</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>O script foi parado: precisou de mais de %1 MB de memória</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>O script foi parado: demorou mais de %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>O script foi parado: durante %1 s não chamou nenhum objeto</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>O projeto de destino tem um nome diferente do de origem, e nenhuma atribuição para ele está confirmada.
  Projeto de origem: %1
  Projeto de destino: %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Falta a plica de fecho do texto</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>A expressão tem demasiados níveis</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>O catálogo %1 não cabe na cache de %2 MB; a pesquisa não o conhece</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>A versão do catálogo</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>A versão do catálogo indica "%1" como sourceDate.</translation>
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
        <translation>O texto está vazio</translation>
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
        <translation>Falta o controlador %1 para a base de ligações</translation>
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
        <translation>A instrução contém um carácter nulo</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>Não se pode escrever a saída: %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>O ficheiro mudou enquanto era lido.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>A função %1 é desconhecida</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>O grupo "%1" não existe na base de ligações, ou %2 não lhe pertence</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>A base de ligações %1 não responde, a ligação a ela foi abandonada</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>A base de ligações %1 não existe</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>A base de ligações %1 tem a forma %2, este programa só conhece a forma %3; é precisa uma versão mais recente</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>A base de ligações %1 não pode ser aberta: %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>A base de ligações está a trabalhar</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>As designações da norma são diferentes.
  Designação anterior: %1
  Designação nova: %2</translation>
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
        <translation>A tabela %1 não existe na base de ligações</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Não foi possível ler a tabela do projeto de destino.
  Projeto: %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>As tabelas da base de ligações %1 não podem ser criadas ou atualizadas: %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>A variável %1 não existe na tabela de destino</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>A variável %1 é desconhecida</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>A ligação à base de ligações %1 foi restabelecida</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>A ligação à base de ligações %1 foi interrompida: %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Os valores da variável %1 são diferentes.
  Valor anterior: %2
  Valor novo: %3</translation>
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
        <translation>A linha de destino já está confirmada para outra linha.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>A linha eliminada %1 já não está no registo da base de ligações; provavelmente já foi restaurada</translation>
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
        <translation>A maioria das linhas tem outros valores no projeto de destino.
  Projeto de destino: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>A linha atribuída não existe na tabela de destino.
  Projeto: %1
  Linha: %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>As alterações perderam-se com a ligação à base de ligações; é preciso repeti-las</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Número ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Um texto na fórmula de %1 ultrapassa %Ln caractere e fica sem valor</numerusform>
            <numerusform>Um texto na fórmula de %1 ultrapassa %Ln caracteres e fica sem valor</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Ainda está em execução outro script</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Uma condição do projeto de destino não é cumprida.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Uma condição de um projeto de destino está errada.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Uma condição tem de ser uma comparação</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Uma fórmula tem de atribuir um valor a uma variável</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Um ficheiro de mapeamento tem de conter um objeto.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Está entre duas versões do catálogo com a mesma data.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Esperado %1, encontrado %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Espera-se uma atribuição à variável %1</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Não há ligação a uma base de ligações. Escolhe-se nas definições.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Nenhum banco de dados de links está conectado.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Número de argumentos errado para a função %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Erro da base de ligações: %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Não há repositório definido para o catálogo "%1"; o seu nome não dá um endereço</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Aqui espera-se uma comparação, não um valor</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Aqui espera-se um valor, não uma comparação</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>A seguir ao documento há um byte com o valor 0.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>Em %1 não há uma base de ligações, ou é de uma forma mais antiga. É criada ou renovada na primeira escrita.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>O endereço da base de ligações contém uma palavra-passe. O lugar dela é o ficheiro de palavras-passe ou PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Sem resposta de %1 em %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Nenhuma linha dos destinos corresponde a esta.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>As alterações não confirmadas perderam-se (instruções: %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Igual apenas por causa de condições ou atribuições de variáveis propostas. Valem assim que uma linha do destino for confirmada.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>A origem e o destino não têm nenhuma variável comum com valor.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>texto depois das aspas de fecho de uma célula</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>texto, início, quantidade</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>texto, procurado</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>texto, procurado, substituto</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>comparação, então, senão</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Outras linhas da tabela de origem têm estes valores.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Outras linhas da tabela de destino têm estes valores.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>valor, casas</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>valor, valor, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Os valores estão aninhados em demasiada profundidade.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>ângulo</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>número</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>número, casas</translation>
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
        <translation>linha %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>linha %1, coluna %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Linha %1, caractere %2: %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Demasiados intervalos da tabela de destino sobrepõem-se para os comparar todos.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Poucos valores da linha têm correspondência na tabela de destino.
  Sem correspondência: %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>o carácter decimal é «.» ou «,»</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>o fim</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>o campo não tem nome</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>o campo «%1» aparece duas vezes</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>o projeto não tem tabela; o seu lexema SACHM deve indicá-la</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>o projeto não foi lido</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>o campo calculado «%1» não tem fórmula</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>é um endereço; só se leem ficheiros</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>o descritor tem lineSubIdField sem lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>a entrada «%1» aparece duas vezes</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>o nome do ficheiro contém um carácter NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>o intervalo "%1" de %2 tem demasiados valores (%3); só se percorre %Ln</numerusform>
            <numerusform>o intervalo "%1" de %2 tem demasiados valores (%3); só se percorrem %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>as aspas da célula não formam pares</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>a condição não tem nome</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>os bytes não são UTF-8; guarde o ficheiro como UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>o ficheiro está vazio; a primeira linha deve nomear as colunas</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>a condição de filtro "%1" não se consegue ler: %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>a fórmula da coluna calculada "%1" não se consegue ler: %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>o passo de "%1" não é maior que 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>a coluna não tem nome</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>falta a coluna "%1" do descritor</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>falta a coluna "%1" que %2 nomeia no descritor</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>a coluna "%1" aparece duas vezes</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>não é possível escrever o ficheiro de bloqueio ao lado</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>os números de "%1" têm algarismos a mais</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>o número de linha %1 já é o da linha %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>estas colunas calculadas precisam umas das outras: %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>uma aspa dentro de uma célula que não começa por aspa; ponha toda a célula entre aspas e duplique as interiores</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>umas aspas não são fechadas</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>espera-se um campo, ou seja, um objeto</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>espera-se um objeto de textos</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>espera-se um objeto com uma entrada para cada língua</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>espera-se um objeto</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>um operador ou o fim</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>espera-se um texto</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>um nome de variável</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>um valor</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>um valor entre os pontos e vírgulas está vazio</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>espera-se uma condição, ou seja, um objeto</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>espera-se uma lista de condições</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>espera-se uma lista de campos</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>espera-se uma lista de textos</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>espera-se um número</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>espera-se um número inteiro de 0 a 2147483647</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>um parêntese de fecho</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contém erros!</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>substituído: %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>bloqueado por %1 em %2 (processo %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>igual: %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>não é um texto em UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nenhum valor</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>JSON inválido: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>não se pode ler: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>não se pode abrir: %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>mais linhas do que cabem numa tabela</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>mais de 64 níveis de profundidade</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>sem correspondente: %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>assim em %Ln outra linha</numerusform>
            <numerusform>assim em %Ln outras linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" não existe; são possíveis: %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>espera-se true ou false</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>espécie desconhecida «%1»; conhecidas: %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>tipo desconhecido «%1»; conhecidos: %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>diferente: %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>As alterações estão a ser escritas na base de ligações</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>semelhante: %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>"%1" termina abaixo do início</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>"%1" não tem passo; escreva como 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>«%1» é um endereço; só se leem ficheiros</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>«%1» não é uma data; escreva-a como 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>"%1" não é um intervalo de valores de %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>"%1" não é um diretório legível</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>"%1" não é um número de linha, isto é, um inteiro de 0 a 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>não é possível escrever em "%1"</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» está fora dos catálogos; mova-o para lá ou permita o seu diretório</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>«%1» está fora de «%2»; mova-o para lá ou permita o seu diretório</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>"%1" aparece mais de uma vez; vale a última entrada.</translation>
    </message>
</context>
</TS>
