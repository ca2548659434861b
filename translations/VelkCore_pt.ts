<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>título de secção sem fim</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>aspas sem fim; o texto vale tal como está</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>O documento não tem valor.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Isto não é JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Não é um ficheiro normal.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Faltam as aspas finais de um texto.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Falta o nome de uma entrada.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>A cópia difere do original.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Um carácter de controlo num texto tem de ser escrito como sequência de escape.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Um texto contém metade de um par substituto.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Um texto contém uma sequência de escape desconhecida.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Um texto não é UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Falta um valor.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Um número não tem algarismos depois do ponto.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Um número não tem algarismos no expoente.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Um número não tem algarismos.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Um número é demasiado grande.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Depois de \u têm de estar quatro algarismos hexadecimais.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Há ainda algo depois do documento.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Faltam os dois pontos depois do nome de uma entrada.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Falta uma vírgula ou } depois de uma entrada.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Falta uma vírgula ou ] depois de um valor de lista.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>texto depois das aspas; tudo vale tal como está</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>linha %1, coluna %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>é um diretório</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>não é uma extensão: falta VELK_EXTENSION</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>o nome contém um carácter NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>o texto depois do título de secção é ignorado</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>o ficheiro é UTF-16; guarde-o como UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>a extensão foi feita para a versão %1, esta é a %2; compile-a de novo</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>as linhas terminam só com retornos de carro; guarde o ficheiro com mudanças de linha</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>a sequência de escape desconhecida %1 vale tal como está</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>é só de leitura</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>não é UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>nem secção, nem chave, nem comentário</translation>
    </message>
</context>
</TS>
