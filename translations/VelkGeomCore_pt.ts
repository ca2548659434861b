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
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>Outros valores dos intervalos pertencem a outro destino.</translation>
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
        <source>Der Text ist leer</source>
        <translation>O texto está vazio</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>A função %1 é desconhecida</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Não foi possível ler a tabela do projeto de destino.
  Projeto: %1</translation>
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
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Os valores da variável %1 são diferentes.
  Valor anterior: %2
  Valor novo: %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>A linha de destino já está confirmada para outra linha.</translation>
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
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Um texto na fórmula de %1 ultrapassa %2 caracteres e fica sem valor</translation>
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Esperado %1, encontrado %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Espera-se uma atribuição à variável %1</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Número de argumentos errado para a função %1</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>A origem e o destino não têm nenhuma variável comum com valor.</translation>
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
        <source>Zeichen %1: %2</source>
        <translation>Carácter %1: %2</translation>
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
        <source>das Ende</source>
        <translation>o fim</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>um operador ou o fim</translation>
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
        <source>eine schließende Klammer</source>
        <translation>um parêntese de fecho</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contém erros!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>nenhum valor</translation>
    </message>
</context>
</TS>
