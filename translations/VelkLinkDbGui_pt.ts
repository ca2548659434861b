<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(não foi possível encontrar)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Alteração feita por outro utilizador:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;A linha foi marcada como descontinuada.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;A linha foi atribuída de novo. A linha agora atribuída não existe (localmente).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Esta linha foi marcada como descontinuada.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Esta linha foi atribuída à linha&lt;br /&gt;%1 do projeto %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nova atribuição: &lt;br /&gt;%3 do projeto %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>A atualização do registo falhou!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Atribuir a linha selecionada</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Linha atualmente atribuída</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confirmar todas as atribuições</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>A criação do registo falhou!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Atribuir os intervalos de valores resolvidos desta linha</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Atribuir os intervalos de valores resolvidos</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Da seleção (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Cancelar a seleção</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Seleção para o gestor de ligações</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Enviar a seleção para o gestor de ligações</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Linhas atribuídas automaticamente</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Mostrar a árvore filtrada</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Pedir um número ERP por correio eletrónico</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Gerar uma condição para a linha selecionada e copiá-la para a área de transferência</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Adicionar condição</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Eliminar condição</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Condições</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Condições e atribuições de variáveis são propostas. Valem assim que uma linha do destino for confirmada.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autenticar/mudar de utilizador</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Substituir projetos de destino já atribuídos</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Atribuições confirmadas</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>A resolução dos intervalos de valores pode demorar muito, conforme as variáveis escolhidas e o tamanho da tabela.
Continuar mesmo?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Não foi possível eliminar a peça, pois várias montagens fazem referência a ela!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>O projeto de destino %1 já não existe</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>O projeto de destino com o caminho %1 foi removido.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>O projeto de destino com o caminho %1 foi adicionado.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Mostrar nomes de arquivos em vez de descrições</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Editar registo</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Adicionar registo</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Eliminar registo</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Adicionar um registo à base de dados de ligações</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>O algoritmo contém erros:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>A chamada de %1 falhou!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Não foi possível eliminar o registo!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>As condições do projeto %1 foram alteradas.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>A versão do projeto de destino com o caminho %1 foi alterada.
  Data anterior do projeto: %2, data nova do projeto: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Não foi possível abrir a tabela do projeto de origem.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Não foi possível abrir a tabela de pelo menos um projeto de origem.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>A versão da tabela do projeto de destino com o caminho %1 foi alterada.
  Data anterior da tabela: %2, data nova da tabela: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>A variável %1 não existe na tabela de destino</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>A correspondência de variáveis do projeto %1 foi alterada.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>A linha %1 foi alterada.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>As linhas não foram atribuídas novamente e permanecem como estão. Não é possível ler estes projetos de destino: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>A variável %1 não existe na tabela de origem</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Esta linha foi descontinuada. O modelador confirmou-o</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Não foi possível atribuir esta linha</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Esta linha foi atribuída automaticamente. A atribuição tem de ser confirmada ou corrigida</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>O modelador confirmou esta atribuição</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Atribuir este projeto à linha selecionada</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Lista de documentos</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Alterações feitas pela atualização do mapeamento ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Pedir número ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Existe uma atribuição de intervalo de valores para esta linha.
A atribuição tem de ser alterada com 'Editar a atribuição de intervalos de valores'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Existe pelo menos um conflito.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Existe pelo menos uma atribuição confirmada.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Existe pelo menos uma linha não atribuída.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Existe pelo menos uma alteração não confirmada.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Não foi possível eliminar todos os subelementos, pois outras montagens também fazem referência a alguns deles!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Foi removido um mapeamento do projeto %1.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Foi adicionado um mapeamento do projeto %1.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Erro ao copiar a condição:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Erro ao copiar a atribuição de variável.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Editar fórmula</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Fórmula...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Existe um conflito nesta linha. A atribuição tem de ser confirmada ou corrigida</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Número total de linhas</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Selecionar grupo</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Catálogo</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Nenhum projeto corresponde à escolha por baixo da árvore.
Desative «%1» para voltar a ver todos os projetos.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Nenhum erro encontrado</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Nenhuma linha está sem atribuição.
Sem a marca em «%1» veem-se todas as linhas.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Classificar</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflitos</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Mostrar legenda</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Gestor de ligações</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Abrir o gestor de ligações</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sessão</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Novo...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Criar um novo registo</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Inserir um novo registo (assume os valores do registo selecionado)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Linhas não encontradas</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Designação da norma</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Número da norma</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Mostrar só linhas atribuídas várias vezes</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Mostrar só linhas da tabela original atribuídas a esta linha</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Caminho:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Selecionar projeto</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Pesquisar ou selecionar projeto</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Caminho do projeto:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Está prestes a eliminar uma montagem que contém subelementos. Eliminar também todos os subelementos?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Verificar sintaxe</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Selecionar linha da tabela</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorar variável</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Correspondência de variáveis</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Adicionar atribuição de variável</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Mostrar colunas ocultas</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Alterações feitas por si que não puderam ser assumidas:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Alteração planeada por si:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Ligar e desligar as séries preferenciais</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Séries preferenciais sim/não</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Selecionar variáveis com intervalo de valores</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Editar as atribuições de intervalos de valores</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Combinações de valores: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET do documento selecionado:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Mostrar só projetos com linhas não atribuídas</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Mostrar só projetos com correspondências incompletas</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Mostrar só projetos com linhas atribuídas</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Mostrar só linhas não atribuídas (projeto de origem)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Mostrar só linhas não atribuídas (projeto de destino)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>A atribuir a linha com LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Atribuir novamente as linhas</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>A atribuir as linhas de novo</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Linhas: %1 de %2 · abertas que seriam atribuídas: %3 · confirmadas que deixariam de servir: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Número da linha</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projeto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Remover projeto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Adicionar projeto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Mover o projeto de destino para cima</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Mover o projeto de destino para baixo</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Variável de destino</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Atribuições a verificar</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Confirmar a atribuição</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Anular a atribuição desta linha</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Anular a atribuição desta linha e confirmar</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Eliminar correspondência</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Anular a atribuição a este projeto</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Anular a atribuição a este projeto e confirmar (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contém erros!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Visão geral</translation>
    </message>
</context>
</TS>
