<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Não há nada para alterar.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Confirmar %Ln linha?</numerusform>
            <numerusform>Confirmar %Ln linhas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Confirmar %Ln linha como descontinuada?</numerusform>
            <numerusform>Confirmar %Ln linhas como descontinuadas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Remover a atribuição de %Ln linha?</numerusform>
            <numerusform>Remover a atribuição de %Ln linhas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Remover a atribuição de %Ln linha e confirmá-la como descontinuada?</numerusform>
            <numerusform>Remover a atribuição de %Ln linhas e confirmá-las como descontinuadas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln delas já está confirmada.</numerusform>
            <numerusform>%Ln delas já estão confirmadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln delas perde a sua atribuição de intervalos de valores.</numerusform>
            <numerusform>%Ln delas perdem a sua atribuição de intervalos de valores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln linha sem destino fica por confirmar.</numerusform>
            <numerusform>%Ln linhas sem destino ficam por confirmar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln linha fica como está.</numerusform>
            <numerusform>%Ln linhas ficam como estão.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln linha em conflito não é alterada.</numerusform>
            <numerusform>%Ln linhas em conflito não são alteradas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln linha não consta de nenhum projeto de destino.</numerusform>
            <numerusform>%Ln linhas não constam de nenhum projeto de destino.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln linha confirmada.</numerusform>
            <numerusform>%Ln linhas confirmadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln linha confirmada como descontinuada.</numerusform>
            <numerusform>%Ln linhas confirmadas como descontinuadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Atribuição de %Ln linha removida.</numerusform>
            <numerusform>Atribuição de %Ln linhas removida.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Atribuição de %Ln linha removida, confirmada como descontinuada.</numerusform>
            <numerusform>Atribuição de %Ln linhas removida, confirmadas como descontinuadas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>sem sucessora</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nova linha</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 já decididas ou certas aqui</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 sem linha na nova versão</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 confirmadas então como descontinuadas</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 em projetos que faltam aqui</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 em conflito lá</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Não assumidas: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Não há nada a assumir de %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>O ficheiro não contém nenhum mapeamento da versão do catálogo %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Também este ficheiro leva à versão do catálogo %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Escolha um mapeamento que leve da mesma versão antiga do catálogo a uma nova anterior.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Assumida de %1: confirmada lá para a versão do catálogo %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>A ler o mapeamento anterior</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Não é possível assumir nada de %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Diretório da versão do catálogo %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>A procurar projetos de destino</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>A assumir decisões</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Cancelado, nada foi assumido</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Decisões assumidas de %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Assumidas de %1: %2 de %Ln linha confirmada, %3 atribuídas com certeza, %4 propostas.</numerusform>
            <numerusform>Assumidas de %1: %2 de %Ln linhas confirmadas, %3 atribuídas com certeza, %4 propostas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Diretório da versão antiga do catálogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Diretório da versão nova do catálogo</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Diretórios dos catálogos</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Onde estão as duas versões do catálogo deste ficheiro de mapeamento? Os diretórios são memorizados com o ficheiro.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Versão antiga (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Versão &amp;nova (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>São necessários ambos os diretórios.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 não é um diretório.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>Na versão antiga falta %1. Procura-se o diretório em que está o catálogo %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Na versão nova falta o catálogo %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Não é possível mostrar a linha %1 em %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Nenhuma linha está em conflito</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Todos os conflitos estão decididos; guarde agora</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Conflito %1 de %2, ainda %3 por decidir</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln linha de %1 contradiz-se do mesmo modo. A decisão vale para todas?</numerusform>
            <numerusform>%Ln linhas de %1 contradizem-se do mesmo modo. A decisão vale para todas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Própria: %1
Outra: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Para todas</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Linha a linha</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>A linha não está em conflito</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>A decisão própria não é conhecida: a linha já estava em conflito ao abrir</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Nenhuma linha está em conflito.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Todos os conflitos estão decididos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln outra linha contradiz-se como esta.</numerusform>
            <numerusform>%Ln outras linhas contradizem-se como esta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflitos</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Lados do conflito</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Própria</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Outra</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Decidir de novo</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 de %Ln conflito ainda por decidir.</numerusform>
            <numerusform>%1 de %Ln conflitos ainda por decidir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>por decidir</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>própria</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>outra</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nova</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Decisão própria</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Outra decisão</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Vale</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>atribuída automaticamente</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>a verificar</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>confirmada</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>sem destino, em aberto</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmada como descontinuada</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, linha %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projeto de destino</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Linha de destino</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Intervalos de valores</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Linha antiga</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Decisão própria</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Outra decisão</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Dado</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>igual</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>substituído como em mais %Ln linha</numerusform>
            <numerusform>substituído como em mais %Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>semelhante</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>diferente</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>só na linha nova</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>só na linha antiga</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Antigo</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Novo</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>A tabela não tem a linha.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Sem destino. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>A linha atribuída não é nenhuma das candidatas.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Antigo e novo</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Candidatas</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Confirmada.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Atribuída com certeza.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>comparadas: as primeiras %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Nenhuma diferença em comum.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Em comum: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Linhas selecionadas</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Versão do catálogo</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>O ficheiro contém várias versões do catálogo. Qual deve ser aberta?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>A ler o ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Não é possível abrir o ficheiro.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>O ficheiro está aberto só para leitura.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>O bloqueio pode ser removido se de certeza já ninguém trabalha lá, por exemplo após uma avaria do computador.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>Só &amp;ler</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Remover o &amp;bloqueio</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Não foi possível remover o bloqueio.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Os catálogos não são conhecidos; indicam-se com --source e --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Guardar as alterações a %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>As alterações rejeitadas perdem-se.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Rejeitar</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln linha</numerusform>
            <numerusform>%1: %Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Ainda %Ln linha em conflito, nestes projetos:</numerusform>
            <numerusform>Ainda %Ln linhas em conflito, nestes projetos:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Mostrar &amp;os conflitos</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Guardar &amp;mesmo assim</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>O ficheiro não foi guardado.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Combinar as alterações</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Manter &amp;uma cópia e escrever de novo</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Escrever a minha versão</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>As alterações dos outros foram integradas. Verifique-as e guarde mais uma vez.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Não foi possível integrar as alterações dos outros.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Não é possível criar o ficheiro de mapeamento.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>A ler %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Não é possível ler o ficheiro de mapeamento %1 (%2).
Escolha outro ficheiro ou reponha a cópia de segurança %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Não é possível ler o ficheiro de mapeamento %1 (%2).
Escolha outro ficheiro.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 não contém nenhuma versão.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 não contém a versão %2. Existem: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 está aberto só para leitura.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 está a ser editado por %2 e por isso está aberto só para leitura.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Não é possível escrever na pasta de %1 (%2). Por isso o ficheiro está aberto só para leitura; guardado com outro nome, pode ser editado.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Há trabalho em %1 que não foi guardado. Será oferecido assim que o ficheiro puder ser aberto para edição (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 tem ainda outro nome (ligação física). Ao guardar, o ficheiro com o outro nome fica como estava.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>A guardar %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>A fazer a cópia de segurança de %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 está a ser editado por %2. Nada foi escrito. Escolha outro nome.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Não é possível criar nada na pasta de %1 (%2). Nada foi escrito. Escolha outra pasta.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Nenhuma linha deste projeto está no filtro.
Abra «%1» e escolha «%2» para voltar a ver todas as linhas.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Nenhum projeto tem uma linha no filtro.
Abra «%1» e escolha «%2» para voltar a ver todos os projetos.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Ficheiros de mapeamento (*.json);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Abrir ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Guardar ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Guardar tabela</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabelas (*.csv);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Escolher a cópia comum</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Assumir decisões de</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>O filtro foi retirado: o projeto não tem nele nenhuma linha</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Chegou ao fim, continua a partir do início</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Chegou ao início, continua a partir do fim</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Não resta nenhuma linha no filtro</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>texto substituído</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>número convertido</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Porque está aberta</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Tipo de diferença</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Diferença na coluna</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Decidido por último por</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>ninguém</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(nada disto)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>não os escolhidos</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>A ler as tabelas...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>em %Ln projeto</numerusform>
            <numerusform>em %Ln projetos</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Sem filtro: todas as linhas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Tabelas ilegíveis: %Ln</numerusform>
            <numerusform>Tabelas ilegíveis: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro sobre todas as linhas</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Re&amp;tirar filtro</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Proveniência</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>assumidas de um mapeamento anterior</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 não é um ficheiro normal e por isso não serve de bloqueio. Nada foi escrito. Remova o que lá está.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 está a ser guardado por outro programa. Nada foi escrito. Guarde de novo dentro de momentos.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Não é possível criar nada na pasta de %1 (%2). Nada foi escrito. Liberte espaço ou guarde com outro nome.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>Não é possível ler %1 (%2). Nada foi escrito. Guarde com outro nome.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 não é um ficheiro de mapeamento legível (%2). Nada foi escrito. Ao guardar, o ficheiro existente é conservado com um nome com data e hora e é criado um novo que só contém esta versão.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 não é um ficheiro de mapeamento legível (%2). Nada foi escrito. Ao guardar, o ficheiro existente é conservado com um nome com data e hora e é criado um novo. As outras versões vêm da cópia de segurança %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 é ilegível e não foi possível conservá-lo como %2 (%3). Nada foi escrito. Guarde com outro nome.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 foi eliminado ou renomeado desde a abertura. Ao guardar, o ficheiro é criado de novo e só contém esta versão (%2). Ainda nada foi escrito.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 foi alterado por outra pessoa desde a abertura, mas não esta versão (%2). Ao guardar, as outras versões ficam como estão agora no ficheiro. Ainda nada foi escrito.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 foi alterado por outra pessoa desde a abertura, também esta versão (%2). Ao guardar perdem-se as alterações dela a esta versão. Ainda nada foi escrito: guarde mesmo assim, guarde com outro nome ou abra de novo o ficheiro.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Não é possível escrever em %1 (%2). Nada foi escrito. Verifique as permissões de escrita ou guarde com outro nome.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 não foi guardado: %2. O ficheiro está inalterado, as alterações continuam abertas. Liberte espaço e guarde de novo, ou guarde com outro nome.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>não foi possível escrever o ficheiro por completo</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>o ficheiro escrito não é legível (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>o ficheiro escrito não contém o que devia ser guardado</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>no ficheiro escrito falta a versão %1, ou é outra</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Não foi possível criar a cópia de segurança %1 (%2). Nada foi escrito. Liberte espaço ou guarde com outro nome.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 foi alterado por outra pessoa enquanto era guardado. Nada foi escrito. Guarde mais uma vez.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 não foi guardado: %2. O ficheiro está inalterado, as alterações continuam abertas. Guarde com outro nome.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Procurar na página</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Histórico das decisões...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Quem decidiu o quê, quando e porquê</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Motivo da decisão...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Para a última decisão ou para as linhas selecionadas, por exemplo porque não há sucessora</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Linha %1 em %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln linha em %1</numerusform>
            <numerusform>%Ln linhas em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Motivo anotado: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Histórico das decisões</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Linha selecionada</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Projeto selecionado</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Todos os projetos</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Procurar quem, projeto, destino ou motivo</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Ler de novo</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Guardar como CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Linhas ilegíveis do diário: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Decisões: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Não é possível escrever o ficheiro.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>sem sucessora</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (não guardado)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quem</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Assumida de %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Pasta com ficheiros CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Diretório do catálogo</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importar tabelas</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Pasta com ficheiros CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Diretório do catálogo:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>De cada ficheiro CSV resulta um projeto com a sua tabela no mesmo lugar do catálogo. Quem importar de novo as tabelas mantém os números das linhas.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Falta a pasta com os ficheiros CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Falta o diretório do catálogo; é criado se existir o diretório acima.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Um diretório está dentro do outro.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Confirmar a linha ou atribuir a linha selecionada</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Remover a atribuição da linha</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Remover a atribuição e confirmar como descontinuada</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Editar a atribuição de intervalos de valores</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Copiar a condição a partir da linha</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Confirmar o projeto inteiro</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Procurar na tabela</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Procurar seguinte</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Procurar anterior</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro de coluna</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Copiar linhas</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Tabela maior</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Tabela menor</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabela em tamanho normal</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Predefinição</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Nenhuma tecla</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Comando ou tecla</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Onde</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tecla para %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Os campos e as listas precisam eles próprios da tecla %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>A tecla %1 ficaria com %2 e %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Escolhida por si</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 deixa então de ter a tecla %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>A tecla %1 é agora de %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nada encontrado</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Confirmada: a atribuição está decidida</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Proposta: tem de ser confirmada ou corrigida</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Sem ícone: inequivocamente igual, atribuída pelo programa</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Nenhuma atribuição encontrada</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Descontinuada: confirmado que não há atribuição</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Conflito com a alteração de outra pessoa</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Não é possível ler o projeto ou a tabela</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Atribuições de intervalos de valores da linha</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Na tabela de destino: a linha atribuída</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Condição copiada para a área de transferência</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>A condição copiada ainda não serve assim: falta um valor, é um intervalo ou contém aspas: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Aqui, dentro do filtro, está tudo feito; fora ainda há %Ln linha em aberto.</numerusform>
            <numerusform>Aqui, dentro do filtro, está tudo feito; fora ainda há %Ln linhas em aberto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Chegou ao fim, continua a partir do início</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Chegou ao início, continua a partir do fim</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Conflito %1 de %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Nenhuma linha está num dos estados escolhidos</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Já nenhuma linha precisa de uma decisão</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Não é possível mostrar nenhuma das linhas em aberto; faltam as tabelas</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Ir para a linha</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Número ou designação normalizada:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Ir para</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Nenhum projeto está selecionado</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Nenhuma linha com «%1» neste projeto</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Resultado %1 de %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Executar</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>O passo pode ser anulado.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Trata-se das linhas selecionadas.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Trata-se de todas as linhas do projeto.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtro: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Nenhum outro projeto tem linhas assim</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Trata-se apenas das linhas mostradas do projeto: %1 de %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Conflito</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Mostrar só as linhas em conflito com a alteração de outra pessoa, e os seus projetos</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>A verificar</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Mostrar só as linhas com uma proposta que tem de ser confirmada ou corrigida, e os seus projetos</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sem destino</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Mostrar só as linhas para as quais nada foi encontrado, e os seus projetos</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Mostrar só as linhas inequivocamente iguais, atribuídas pelo programa, e os seus projetos</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Mostrar só as linhas com atribuição confirmada, e os seus projetos</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Descontinuada</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Mostrar só as linhas confirmadas como descontinuadas, e os seus projetos</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Usar base de ligações</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Ficheiro neste computador</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Servidor PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>a habitual</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>A palavra-passe está no ficheiro de palavras-passe, no cofre de chaves do ambiente de trabalho ou em PGPASSWORD, ou é introduzida no início de sessão. Não é guardada.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>se possível</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>sempre</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>sempre, servidor verificado</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Ficheiro:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Anfitrião:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Base de dados:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>U&amp;tilizador:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Encriptação:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Base de ligações: falta o nome do ficheiro.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Base de ligações: o nome da base de dados falta ou não é válido.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Verificar os números da base de ligações</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>Na base de ligações não há nenhum grupo a que pertença.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Selecionar grupo</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Grupo da base de ligações:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>A linha %1 de %2 não está neste mapeamento.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>A verificar os números da base de ligações</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Não foi possível verificar os números.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>As alterações na base de ligações podem ter-se perdido.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Falta a licença para a base de ligações.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Início de sessão na base de ligações</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>A palavra-passe vale até ao fim do programa e não é guardada. Se ficar vazia, vem do ficheiro de palavras-passe.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Com este nome o registo indica quem eliminou algo.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Gestor de ligações</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Procurar número, projeto ou descrição</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Mostrar linha</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Ligar a outra linha...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Escolha depois o projeto e a linha e envie a seleção com «Seleção para o gestor de ligações».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>Últimas &amp;eliminações...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Ligações: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Nada foi eliminado que pudesse ser reposto.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Repor as últimas eliminações? Linhas: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 eliminou-as em %2 a partir de %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Repor</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>A primeira ligação (%Ln); a pesquisa mostra outras.</numerusform>
            <numerusform>As primeiras %Ln ligações; a pesquisa mostra outras.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Verificação dos números</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Números em projetos deste mapeamento: %1, em outros projetos: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Não comparados por serem ilegíveis: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Linha descontinuada ou inexistente</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmada como descontinuada</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>o projeto não a tem</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Reivindicado por várias linhas</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>A peça difere</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>A peça difere (não comparada)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Linhas em aberto com números</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Números: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>A linha %1 não existe em %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Não é possível mostrar o projeto %1.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Encontrar</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projeto, linha, comando ou definição</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Encontrados</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Bastam partes das palavras; um número a seguir indica uma linha.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nada encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln resultado</numerusform>
            <numerusform>%Ln resultados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Os primeiros %1 de %Ln resultado</numerusform>
            <numerusform>Os primeiros %1 de %Ln resultados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Linha %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Definição</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Erro: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Aviso: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Limpar mensagens</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Copiar todas as mensagens</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Utilizador:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Palavra-passe:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Sem ligação à base de ligações: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Não é possível ler os números ERP. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Linhas atribuídas de novo: nenhuma alteração</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Aqui não há nenhuma linha assim. %1 vai para a seguinte.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>só leitura</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>O catálogo</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>À esquerda está a versão antiga do catálogo. Os ícones mostram onde ainda há algo a decidir. Selecione um projeto para ver as suas linhas.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Os destinos</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Aqui estão os projetos da versão nova que podem receber linhas, com condições e correspondências de variáveis.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>As linhas</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>À esquerda a tabela antiga, à direita a nova. %1 confirma a atribuição ou atribui a linha selecionada à direita, %2 remove-a, %3 confirma que a linha está descontinuada.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>O que ainda está em aberto</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>O contador diz quantas linhas precisam de uma decisão. %1 vai para a seguinte, também no projeto seguinte.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nada se perde</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Cada passo pode ser anulado. Após uma falha, o programa oferece a recuperação do que não foi guardado. A visita guiada está no menu Ajuda.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Atribuir as linhas de todo o catálogo?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>O que está confirmado fica em qualquer caso. O passo pode ser anulado.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>Só &amp;linhas sem atribuição</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Tudo o que não está confirmado de novo</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Todos os projetos atribuídos</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>O projeto de destino %1 não existe.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Projeto de destino: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Definições: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Não há nenhuma indicação para este lugar</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Limpar lista</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Partilhar</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Abertos recentemente</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Ir &amp;para</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Rever</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>Só &amp;linhas</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Base de ligações</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Estados das linhas</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Ferramentas</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Nenhum ficheiro está aberto para edição.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Alterações próprias sobre a versão do ficheiro</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln conflito: decisão própria</numerusform>
            <numerusform>%Ln conflitos: decisão própria</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln conflito: decisão do outro lado</numerusform>
            <numerusform>%Ln conflitos: decisão do outro lado</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln conflito: a decidir de novo</numerusform>
            <numerusform>%Ln conflitos: a decidir de novo</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Não é possível escrever o diário %1 (%2). Após uma falha, as alterações perder-se-iam: guarde em breve.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Não é possível salvaguardar a versão recuperada (%1). Liberte espaço e abra de novo; o diário está inalterado.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Recuperação após uma falha</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Não é possível criar o diário %1 (%2). Após uma falha, as alterações perder-se-iam: guarde com frequência.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Nenhum ficheiro de mapeamento está aberto.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Está a ser guardado neste momento.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Não foi guardado. %1 Guarde com outro nome.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>O bloqueio de %1 perdeu-se e não pode ser renovado. Outros poderiam editar o ficheiro ao mesmo tempo.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>A salvaguarda automática não resultou (%1). Guarde em breve.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>A alteração não foi aplicada. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Conflitos marcados</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Anulado: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Refeito: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>“%1” já não se ajusta ao que mudou depois. A lista de passos diz o que o impede.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>A procurar projetos de destino</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Cancelado, nada foi criado</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>A atribuir linhas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projeto: %1 no mesmo lugar, %2 noutro, %3 dividido, %4 sem destino, %5 ilegível</numerusform>
            <numerusform>%Ln projetos: %1 no mesmo lugar, %2 noutro, %3 divididos, %4 sem destino, %5 ilegíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 de %Ln projeto</numerusform>
            <numerusform>%1 de %Ln projetos</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>das quais %1 atribuídas, %2 a verificar, %3 sem destino</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 com %Ln linha</numerusform>
            <numerusform>%1 com %Ln linhas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln alteração integrada.</numerusform>
            <numerusform>%Ln alterações integradas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln linha foi decidida da mesma forma por ambos.</numerusform>
            <numerusform>%Ln linhas foram decididas da mesma forma por ambos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln linha foi decidida de forma diferente e está marcada como conflito.</numerusform>
            <numerusform>%Ln linhas foram decididas de forma diferente e estão marcadas como conflito.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln outra contradição: vale a versão do ficheiro.</numerusform>
            <numerusform>%Ln outras contradições: vale a versão do ficheiro.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Não é possível mostrar a linha %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Nenhuma ocorrência está selecionada</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Corrigido: %1 em %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>As tabelas estão a ser comparadas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln linha atribuída examinada</numerusform>
            <numerusform>%Ln linhas atribuídas examinadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln ocorrência</numerusform>
            <numerusform>%Ln ocorrências</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Vizinhança</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>As linhas %1 a %2 estão deslocadas %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>As linhas %1 e %2 estão trocadas</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>A linha %1 está fora do lugar por %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>A linha %1 tem a linha de destino de outra</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>A linha %1 foi saltada</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>por decidir</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Corrigido: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Ocorrência</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Corrigido</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Diretório da versão antiga do catálogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Diretório da versão nova do catálogo</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Atribuir logo as linhas</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Novo mapeamento</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Versão antiga do catálogo:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Catálogo contido:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Versão &amp;nova do catálogo:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Escolher ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Ficheiro de mapeamento:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Criar</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Falta o diretório da versão antiga do catálogo.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Falta o diretório da versão nova do catálogo.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Cada versão precisa de um diretório com o catálogo.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>O ficheiro de mapeamento precisa de um nome.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>O diretório %1 não existe.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 já existe.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Ao guardar, a nova versão é acrescentada; uma versão com a mesma data é substituída, com tudo o que nela está confirmado.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Usar este ficheiro</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>o suporte está cheio</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>o ficheiro fica maior do que aqui é permitido</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>falta a permissão de escrita</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>o suporte está protegido contra escrita</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>a pasta ou o ficheiro já não existe</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>no seu lugar está algo que não é um ficheiro normal</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>sem destino</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Linha antiga</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nova linha</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Outras diferenças</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Não é possível ler a tabela do projeto.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Caminho:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norma:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Designação:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Versão do projeto:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Versão da tabela:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Linhas:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Ficheiro:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln linha em aberto com proposta</numerusform>
            <numerusform>%Ln linhas em aberto com proposta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>em %Ln padrão</numerusform>
            <numerusform>em %Ln padrões</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln delas ainda está a ser comparada</numerusform>
            <numerusform>%Ln delas ainda estão a ser comparadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Escolhida: %Ln linha</numerusform>
            <numerusform>Escolhidas: %Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln delas retirada</numerusform>
            <numerusform>%Ln delas retiradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Diferenças das linhas em aberto</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>em %Ln projeto</numerusform>
            <numerusform>em %Ln projetos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln linha em aberto sem sucessora</numerusform>
            <numerusform>%Ln linhas em aberto sem sucessora</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>As tabelas estão a ser comparadas: %Ln projeto lido</numerusform>
            <numerusform>As tabelas estão a ser comparadas: %Ln projetos lidos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projeto</numerusform>
            <numerusform>%Ln projetos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln outra linha tem estas e outras diferenças</numerusform>
            <numerusform>%Ln outras linhas têm estas e outras diferenças</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projetos</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceções</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>número aproximado</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>outro número</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>outra redação</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>valor acrescentado</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>falta o valor</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>não comparável</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nenhuma diferença</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>outra grafia</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incerto: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>pasta inteira sem destino: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>projeto inteiro sem destino: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>o projeto de destino já não existe: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 já não existe</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>nenhuma linha semelhante: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nome do projeto</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>outro</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>outro valor</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>uma ou várias delas em cada linha</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>não disponível: nenhum ficheiro está aberto</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>não disponível: a ligar à base de ligações</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>não disponível: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>não disponível: nenhuma base de ligações está ligada</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>não disponível: o gestor de ligações não espera nenhuma seleção</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>não disponível: nenhum projeto está selecionado</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>não disponível: nenhuma linha está selecionada</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Número ERP para %1, linha %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Por favor, atribuam um número ERP.

Projeto: %1
Linha: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Não foi possível começar nenhuma mensagem de correio.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Neste computador não está configurado nenhum programa de correio. O pedido é:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Não há nenhuma tabela à vista que possa ser impressa</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Imprimir: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 foi enviado para a impressora</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 impresso em %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>Não foi possível imprimir %1.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>A impressora não aceita páginas.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Não é possível escrever %1.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Página</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Pergunta</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln linha está confirmada, embora valores do seu intervalo não tenham linha nova.</numerusform>
            <numerusform>%Ln linhas estão confirmadas, embora valores dos seus intervalos não tenham linha nova.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Voltar atrás</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Confirmar mesmo assim</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln linha</numerusform>
            <numerusform>%1: %Ln linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>A linha não tem atribuição de intervalos de valores.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>em falta: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>repetidos: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>fora do intervalo antigo: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Intervalo de valores da linha</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 de %Ln valor atribuído</numerusform>
            <numerusform>%1: %2 de %Ln valores atribuídos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Motivo da decisão</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Para:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Motivo:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>retirada do programa</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>fundida com outra peça</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>dividida em várias peças</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>passada para outro catálogo</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>ainda não verificada</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Recuperação</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Recuperado</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projetos</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>A verificar</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sem destino</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>A versão guardada é mais recente do que tudo o que pode ser recuperado.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Com alterações posteriores (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Abrir a versão guardada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln passo</numerusform>
            <numerusform>%Ln passos</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Há trabalho em %1 que não foi guardado: %2, o último «%3». É de %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 com %Ln linha</numerusform>
            <numerusform>%1 com %Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 em %Ln projeto</numerusform>
            <numerusform>%1 em %Ln projetos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>A importar tabelas</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 já não tem ficheiro CSV e fica como está</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Na pasta não há nenhum ficheiro CSV; nada foi importado</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Nem tudo foi escrito: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Não é possível escrever %1.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Exportar linhas</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabelas (*.csv);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>A exportar linhas</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Cancelado, nada foi exportado</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Escrever relatório</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Ficheiros PDF (*.pdf);;Páginas HTML (*.html);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>A criar o relatório</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Cancelado, nenhum relatório foi escrito</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>A compor as páginas</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Relatório escrito em %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Cancelado, não foi criado nenhum relatório</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabela</numerusform>
            <numerusform>%Ln tabelas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 novas, %2 alteradas, %3 inalteradas, %4 não importadas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln linha exportada para %1</numerusform>
            <numerusform>%Ln linhas exportadas para %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 com %Ln linha</numerusform>
            <numerusform>%1 com %Ln linhas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Substituições acordadas</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>em toda a versão do catálogo</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Acordar</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Retirar</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Provas</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>A&amp;dotar</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Uma substituição diz que um valor antigo corresponde a um novo. Faz propostas, mas não confirma nada.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>acordada</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>acordada em %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>As tabelas estão a ser lidas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln linha a favor</numerusform>
            <numerusform>%Ln linhas a favor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln linha contra</numerusform>
            <numerusform>%Ln linhas contra</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Nenhuma está acordada. Com a lista de diferenças aberta, as suas substituições são propostas aqui.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Relatório de mapeamento: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Versão do catálogo %1 para %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Criado em %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Situação das linhas</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Por pasta, com tudo o que contém</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Por projeto</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Porque há linhas em aberto</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Em que as linhas em aberto diferem das suas propostas</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Quem decidiu o quê</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Linhas em aberto</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>O que não foi possível ler</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Confirmadas como descontinuadas</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Atribuídas com certeza</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>A verificar</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sem destino</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>Em conflito</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Designação</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Diferenças</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projetos</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probabilidade</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceções</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Exemplos</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Avaliadas</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Certas</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Erradas no máximo (certeza de 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>rejeitada</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabela não legível</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>não comparável</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>nenhuma diferença</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>duas pessoas decidiram de forma diferente</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>outra pessoa decide</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>uma tabela não é legível</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>uma condição ou fórmula falha</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>nenhum destino é competente</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>falta uma coluna</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>várias linhas são iguais</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>demasiado diferentes</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>igual, só não confirmada</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incerto: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Linhas em aberto sem sucessora</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Linhas confirmadas como descontinuadas</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>O que têm em comum</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>no total</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Assumidas de mapeamentos anteriores</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Mapeamento anterior</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Ainda como assumidas</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Linhas avaliadas</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Linhas resolvidas: %1 de %2; em aberto: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Ler os projetos de destino do repositório</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Catálogo = svn://servidor:porta/caminho</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Um catálogo por linha. Sem linha, o nome do catálogo é também o do seu servidor.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>a mais recente</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>Se&amp;rvidor:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Re&amp;visão:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Espaço &amp;nesta máquina:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Espera pelo &amp;servidor:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Servidor, linha %1: &quot;%2&quot; não tem a forma &quot;Catálogo = svn://servidor:porta/caminho&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Início de sessão no repositório</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 exige início de sessão.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>O nome e a palavra-passe valem até ao fim do programa e não são guardados.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Não é possível mostrar a linha %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Já não há linhas em aberto</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>As tabelas ainda não foram comparadas</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Desde o início: %Ln linha em aberto</numerusform>
            <numerusform>Desde o início: %Ln linhas em aberto</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>As linhas em aberto surgem por incerteza</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>As linhas em aberto surgem por lugar</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>A linha não pertence ao padrão escolhido</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Linha %1 retirada</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Nenhum padrão está escolhido, ou todas as suas linhas estão decididas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>confirmar em %Ln projeto?</numerusform>
            <numerusform>confirmar em %Ln projetos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>O passo pode ser anulado.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Confirmar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linha confirmada</numerusform>
            <numerusform>%Ln linhas confirmadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Não há nenhuma candidata %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Linha %1 → %2 confirmada</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Substituições acordadas: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Escolha um padrão ou selecione linhas em aberto</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Amostra</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Sortear</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Amostra, linha %1 de %2: + certa, − errada</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Não há nenhuma amostra em curso</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>As linhas da amostra já estão todas decididas</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 de %2 certas</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Amostra rejeitada, %1; avaliada por %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>todas as linhas avaliadas</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>com 95 % de certeza menos de %1 % erradas</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Amostra: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>avaliada por %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>a errada estava aí</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>A linha %1 está errada: a amostra terminou</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>Co&amp;ntinuar</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Ver a linha errada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln delas é incerta.</numerusform>
            <numerusform>%Ln delas são incertas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Todos os padrões estão resolvidos</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>em %Ln projeto</numerusform>
            <numerusform>em %Ln projetos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linha confirmada como descontinuada</numerusform>
            <numerusform>%Ln linhas confirmadas como descontinuadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>A linha %1 em %2 está errada. O conjunto foi dividido; com que parte se continua?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Tantas de %Ln linha são sorteadas e avaliadas uma a uma. %1 certas dizem com 95 % de certeza que menos de 5 % estão erradas, %2 certas, menos de 1 %.</numerusform>
            <numerusform>Tantas de %Ln linhas são sorteadas e avaliadas uma a uma. %1 certas dizem com 95 % de certeza que menos de 5 % estão erradas, %2 certas, menos de 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Consola de scripts</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Saída dos scripts</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Linha de um script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Uma linha de JavaScript. Enter executa-a, Tab completa, Cima e Baixo percorrem o histórico.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Para o script em execução (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Apaga a saída</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Script %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(consola)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Concluído, estado %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>É demasiado grande.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Não é um texto em UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>Não é possível ler %1. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Abrir script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Scripts (*.js);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Guardar script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>Não é possível escrever %1. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>O script não está guardado.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(sem nome)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Novo script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Abrir …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Texto do script</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumentos</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>em</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(processo %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Não é possível ler o diário %1 (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Depois da última sessão concluída, o diário %1 não é legível. Não se sabe o que lá estava; o diário é conservado.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>O fim do diário %1 não é legível. A última alteração pode faltar.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>O diário %1 está danificado. Depois do dano, %Ln alteração ainda se ajusta, %2 já não; podem faltar outras. O diário é conservado.</numerusform>
            <numerusform>O diário %1 está danificado. Depois do dano, %Ln alterações ainda se ajustam, %2 já não; podem faltar outras. O diário é conservado.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>O diário %1 está danificado ou não corresponde ao ficheiro de mapeamento. Falta pelo menos %Ln alteração posterior; o diário é conservado.</numerusform>
            <numerusform>O diário %1 está danificado ou não corresponde ao ficheiro de mapeamento. Faltam pelo menos %Ln alterações posteriores; o diário é conservado.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Após u&amp;ma decisão, avançar para a linha em aberto seguinte</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Como o ambiente de trabalho</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Cores:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Tamanho &amp;da letra:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Cópia de se&amp;gurança a cada:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Uma pasta por linha, da qual pode ser lido o que os ficheiros de um catálogo indicam fora dos catálogos.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Pastas permitidas:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Pastas permitidas: &quot;%1&quot; não é uma pasta com caminho completo.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>O mapeamento não é partilhado com ninguém. Escolha primeiro a cópia comum.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 já existe e é outro mapeamento. Escolha outra cópia ou traga a existente para um ficheiro novo.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Outros publicaram algo desde a última atualização.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>As linhas em conflito não são publicadas: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Há alterações em pastas de outros: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>A pasta já está atribuída: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Outra pessoa está a publicar neste momento (%1). Tente de novo dentro de momentos.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>A cópia comum não está acessível: %1. O ficheiro próprio está inalterado; tente de novo mais tarde.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Um dos ficheiros não é um mapeamento legível: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Não foi possível escrever: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Não resultou.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>A ler a cópia comum</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Partilhado através de %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>A obter as alterações dos outros</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Não há nada de novo</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>A publicar as alterações</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapeamento editado</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Publicado, revisão %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Primeiro isto é integrado. Depois é possível publicar.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publicar mesmo assim</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Assumir pastas</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>A&amp;ssumir</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>A registar as pastas</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Já não tem pastas próprias</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Pastas próprias: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(aqui)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>tem-no aberto</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>não o tem aberto</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>última vez %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>pastas %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Revisão própria %1, revisão mais recente %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Outros publicaram algo.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Não há nada de novo dos outros.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>As alterações próprias ainda não estão publicadas.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Cópia comum: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>A última publicação foi interrompida, mas chegou.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>A última publicação foi interrompida. Publique mais uma vez.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>O ficheiro comum tinha sido alterado na cópia de trabalho e não submetido. Isso está guardado em %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>A cópia de trabalho tinha sido deixada a meio de uma operação e foi arrumada.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>A gestão da cópia de trabalho estava danificada e foi obtida de novo; a anterior é %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Algo interrompido foi posto em ordem.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Pastas do catálogo, separadas por vírgulas; * vale por quaisquer caracteres, ? por um. Vazio devolve todas:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>anular</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Tudo decidido</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Linhas que ainda precisam de uma decisão</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Só leitura</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtro: nenhuma linha</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Linhas que o filtro sobre todas as linhas mostra</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln linha&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln linhas&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Em aberto: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 em %Ln projeto</numerusform>
            <numerusform>%1 em %Ln projetos</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Ainda nenhuma linha atribuída</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Cancela o trabalho em curso; o que está pronto fica</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Erros e avisos: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Passos</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Procurar quem, o quê ou linhas</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Voltar até aqui</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Anula este passo e todos os posteriores em vigor</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Ir para a l&amp;inha</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Anular com os dependentes (%Ln)</numerusform>
            <numerusform>&amp;Anular com os dependentes (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Anular só este</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Refazer com os anteriores (%Ln)</numerusform>
            <numerusform>&amp;Refazer com os anteriores (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Ainda nenhum passo</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Nenhum outro passo depende dele.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>O passo pode ser refeito por si só.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Baseiam-se nele: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Baseia-se em: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Impedem-no, porque decidiram de outro modo: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Agora está lá outra coisa que nenhum passo desta lista decidiu, por exemplo de outro programa. O passo já não pode ser movido.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 em %Ln projeto</numerusform>
            <numerusform>%1 em %Ln projetos</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>em vigor</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>anulado</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>ultrapassado</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quem</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Linhas</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>A alteração em %1 só tem efeito quando as linhas forem atribuídas de novo. Aí só se mantém o que está confirmado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln linha em %1 estava confirmada como descontinuada e já não está: %2</numerusform>
            <numerusform>%Ln linhas em %1 estavam confirmadas como descontinuadas e já não estão: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Em %1 ficam variáveis ignoradas: %2. Para voltar a atribuir uma delas, escolha &quot;Fórmula...&quot; ou elimine a linha e introduza-a de novo.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Uma condição do projeto de destino %1 em %2 desapareceu.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Uma correspondência de variáveis do projeto de destino %1 em %2 desapareceu.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Linha %1 → %2 em %3: a linha de destino é também de mais %Ln linha: %4</numerusform>
            <numerusform>Linha %1 → %2 em %3: a linha de destino é também de mais %Ln linhas: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln linha em %1 partilha a sua linha de destino com linhas recém-atribuídas: %2</numerusform>
            <numerusform>%Ln linhas em %1 partilham a sua linha de destino com linhas recém-atribuídas: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln conflito aceite</numerusform>
            <numerusform>%Ln conflitos aceites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln linha confirmada</numerusform>
            <numerusform>%Ln linhas confirmadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln linha confirmada como descontinuada</numerusform>
            <numerusform>%Ln linhas confirmadas como descontinuadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln linha atribuída</numerusform>
            <numerusform>%Ln linhas atribuídas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>atribuição de %Ln linha removida</numerusform>
            <numerusform>atribuição de %Ln linhas removida</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>atribuição de intervalos de valores de %Ln linha alterada</numerusform>
            <numerusform>atribuição de intervalos de valores de %Ln linhas alterada</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>conflito de %Ln linha resolvido</numerusform>
            <numerusform>conflito de %Ln linhas resolvido</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln linha alterada</numerusform>
            <numerusform>%Ln linhas alteradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>linha %1 → %2 confirmada</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>linha %1 → %2 atribuída</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (antes %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>linha %1 confirmada como descontinuada (antes %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>linha %1 confirmada como descontinuada</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>atribuição da linha %1 removida (antes %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projeto adicionado</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projeto removido</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Projeto de destino adicionado</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Projeto de destino removido</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Ordem dos projetos de destino alterada</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Condições alteradas</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Correspondência de variáveis alterada</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versões alteradas</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Estado alterado</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 em %Ln projeto</numerusform>
            <numerusform>%1 em %Ln projetos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>Salta&amp;r</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Seguinte</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Terminar</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linha %2: a entrada %3 da atribuição de intervalos de valores não tem a forma {NAME=VALOR} -&gt; número de linha: &quot;%4&quot;. Corrija-a ou resolva-a de novo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, linha %2: a atribuição de intervalos de valores indica a linha %3, mas a linha não tem projeto de destino. Atribua-a ou limpe o texto.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, linha %2: a atribuição de intervalos de valores indica a linha %3, que não existe em %4. Corrija-a ou resolva-a de novo.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: não é possível ler a tabela do projeto de destino %2, as suas atribuições de intervalos de valores não foram verificadas. Verifique o diretório dos projetos de destino (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>A verificar as atribuições de intervalos de valores</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln atribuição de intervalos de valores verificada</numerusform>
            <numerusform>%Ln atribuições de intervalos de valores verificadas</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>sem reparos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln reparo</numerusform>
            <numerusform>%Ln reparos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (cancelado): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Comparar versões de catálogos</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Saiu uma nova versão de um catálogo e cada linha da antiga tem de passar para uma linha da nova. O programa propõe, o utilizador verifica e confirma.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Abertos recentemente:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Novo mapeamento...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Cria um novo ficheiro de mapeamento a partir de duas versões do catálogo</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>A&amp;brir...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Abre um ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Abrir o catálogo de &amp;exemplo</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Abre um ficheiro de mapeamento próprio para o catálogo de exemplo fornecido</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Escreve todas as alterações no ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Escreve noutro ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Fecha o ficheiro de mapeamento</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Diretórios dos catálogos...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Escolhe os diretórios da versão antiga e da nova do catálogo</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Cópia comum...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Escolhe a cópia através da qual várias pessoas trabalham neste mapeamento</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Integra o que outros publicaram</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Passa as alterações próprias aos outros</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>A&amp;ssumir pastas...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Diz aos outros que pastas se está a editar</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Quem trabalha em quê</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Mostra quem tem o mapeamento aberto e de quem são as pastas</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importar tabelas...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Faz de uma pasta com ficheiros CSV projetos de um catálogo</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Exportar &amp;linhas...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Escreve todas as linhas da versão com as suas atribuições num ficheiro CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>&amp;Relatório...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Escreve em PDF ou HTML até onde chegou a versão e porque há linhas em aberto</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Termina o programa</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Anula o último passo</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Executa de novo o passo anulado</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Confirmar linhas...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Confirma num só passo a atribuição das linhas selecionadas ou de todas as mostradas</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Confirmar &amp;linhas sem destino como descontinuadas...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Confirma como descontinuadas, das linhas selecionadas ou de todas as mostradas, as que não têm destino</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Remover atri&amp;buições...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Remove num só passo a atribuição das linhas selecionadas ou de todas as mostradas</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Remover atribuições &amp;e confirmar...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>As linhas selecionadas, ou todas as mostradas, estão descontinuadas: remove e confirma num só passo</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Atribuir &amp;todos os projetos...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Procura atribuições para todas as linhas do catálogo; o que está confirmado fica</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Verificar atribuições de &amp;intervalos de valores</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Compara todos os textos de intervalos de valores com as tabelas dos projetos de destino</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Script...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Abre uma janela em que se escrevem e executam scripts</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Definições...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Idioma, letra, teclas, cópia de segurança</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Linha em aberto seguinte</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Vai para a linha seguinte que precisa de uma decisão, também no projeto seguinte</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Linha em &amp;aberto anterior</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Vai para a linha anterior que precisa de uma decisão, também no projeto anterior</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>Ir &amp;para a linha...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Procura uma linha do projeto por número ou designação</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Outra tabela</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Alterna entre a tabela antiga e a nova</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Encontrar...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Encontra projetos, linhas, comandos e definições por partes das palavras</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Padrões das diferenças</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Mostra em que as linhas em aberto diferem das suas propostas</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Antigo e novo</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Mostra lado a lado os valores antigos e novos da linha, e as suas candidatas</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Confirmar padrão...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Confirma num só passo todas as linhas do padrão escolhido</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Retirar linha</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>A linha não é confirmada com as outras do padrão</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Linha seguinte do padrão</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Vai para a linha em aberto seguinte do padrão escolhido</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Linha anterior &amp;do padrão</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Vai para a linha em aberto anterior do padrão escolhido</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Padrão se&amp;guinte</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Escolhe o padrão seguinte da lista</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>As &amp;mais incertas primeiro</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>As linhas em aberto surgem pelo risco de erro e não pelo lugar</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>&amp;Vizinhança</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Mostra onde as atribuições de linhas vizinhas não condizem</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Repor as lin&amp;has no lugar</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Corrige num só passo a ocorrência escolhida da vizinhança</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Substituições...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Acorda substituições de valores para a versão do catálogo ou retira-as</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Amos&amp;tra...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Sorteia linhas do padrão escolhido ou das linhas selecionadas, para serem avaliadas uma a uma</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Am&amp;ostra: certa</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>A linha mostrada da amostra está bem atribuída</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Amostra: &amp;errada</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>A linha mostrada da amostra está mal atribuída; a amostra termina</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Candidata &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Atribui esta candidata à linha e confirma-a</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Candidata &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Candidata &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Candidata &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Candidata &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Intervalo de valores da linha</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Mostra que valores do intervalo antigo têm linhas novas</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Co&amp;nflitos</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Mostra as linhas que dois lados decidiram de forma diferente</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Conflito por decidir seguinte</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Vai para a linha seguinte cujo conflito ainda está por decidir</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Conflito: decisão própria</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Neste conflito vale a decisão própria</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Conflito: outra decisão</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Neste conflito vale a decisão do outro lado</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Conflito: decidir de novo</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Nenhuma das decisões vale; a linha fica de novo sem destino</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Reconstrói a vista: árvore, estatística, tabelas do disco</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Abre o manual no lugar em questão</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Teclas...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Mostra e altera as teclas de todos os comandos</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Indicação sobre este lugar</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Mostra a indicação no lugar para onde vão as teclas: numa tabela, porque é que a linha tem o seu estado</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Visita guiada</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Mostra em poucos passos onde está o quê</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>&amp;Acerca deste programa</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versão e diretórios</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Passos...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Mostra todos os passos, também de sessões anteriores, e anula qualquer um</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Projeto seguinte com linhas abertas</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Vai para o projeto seguinte em que há algo a decidir</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Projeto anterior com linhas abertas</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Vai para o projeto anterior em que há algo a decidir</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro sobre todas as linhas</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Escolhe linhas de todos os projetos por estado, motivo, diferença e pessoa; F8 percorre-as</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>I&amp;mprimir...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Mostra as páginas da tabela à vista e imprime-as</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Mostra as páginas do relatório e imprime-as</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Imprimir o relatório...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Assumir decisões...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Assume de um mapeamento anterior, num só passo, o que já foi confirmado para a mesma versão antiga</translation>
    </message>
</context>
</TS>
