<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(nepodařilo se najít)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Změna provedená jiným uživatelem:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Řádek byl označen jako neplatný.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Řádek byl přiřazen znovu. Nově přiřazený řádek (místně) neexistuje.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Tento řádek byl označen jako neplatný.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Tento řádek byl přiřazen k řádku&lt;br /&gt;%1 projektu %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nové přiřazení: &lt;br /&gt;%3 projektu %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Aktualizace záznamu se nezdařila!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Přiřadit označený řádek</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Aktuálně přiřazený řádek</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Potvrdit všechna přiřazení</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Vytvoření záznamu se nezdařilo!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Přiřadit rozložené rozsahy hodnot pro tento řádek</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Přiřadit rozložené rozsahy hodnot</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Z výběru (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Zrušit výběr</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Výběr do správce odkazů</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Odeslat výběr do správce odkazů</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automaticky přiřazené řádky</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Zobrazit filtrovaný strom</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Požádat o číslo ERP e-mailem</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Upravit...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Vytvořit podmínku pro označený řádek a zkopírovat ji do schránky</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Přidat podmínku</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Smazat podmínku</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Podmínky</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Podmínky a přiřazení proměnných jsou navržené. Platí, jakmile je potvrzen některý řádek cíle.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Ověřit/změnit uživatele</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Přepsat již přiřazené cílové projekty</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Potvrzená přiřazení</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Rozložení rozsahů hodnot může podle zvolených proměnných a velikosti tabulky trvat velmi dlouho.
Opravdu pokračovat?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Díl nelze smazat, protože na něj odkazuje více sestav!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Cílový projekt %1 již neexistuje</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Cílový projekt s cestou %1 byl odebrán.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Cílový projekt s cestou %1 byl přidán.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Zobrazit názvy souborů místo popisů</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Upravit záznam</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Přidat záznam</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Smazat záznam</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Přidat záznam do databáze odkazů</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritmus obsahuje chyby:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Volání %1 se nezdařilo!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Záznam nelze smazat!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Podmínky projektu %1 byly změněny.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Verze cílového projektu s cestou %1 byla změněna.
  Staré datum projektu: %2, nové datum projektu: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Tabulku zdrojového projektu se nepodařilo otevřít.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabulku alespoň jednoho zdrojového projektu se nepodařilo otevřít.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Verze tabulky cílového projektu s cestou %1 byla změněna.
  Staré datum tabulky: %2, nové datum tabulky: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Proměnná %1 v cílové tabulce neexistuje</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Mapování proměnných projektu %1 bylo změněno.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Řádek %1 byl změněn.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Řádky nebyly znovu přiřazeny a zůstávají beze změny. Tyto cílové projekty nelze přečíst: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Proměnná %1 ve zdrojové tabulce neexistuje</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Tento řádek již není platný. Modelář to potvrdil</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Tento řádek se nepodařilo přiřadit</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Tento řádek byl přiřazen automaticky. Přiřazení je třeba potvrdit nebo opravit</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelář toto přiřazení potvrdil</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Přiřadit tento projekt označenému řádku</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Seznam dokumentů</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Změny provedené aktualizací mapování ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Požádat o číslo ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Pro tento řádek existuje přiřazení rozsahu hodnot.
Přiřazení je třeba změnit pomocí „Upravit přiřazení rozsahů hodnot“</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Existuje alespoň jeden konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Existuje alespoň jedno potvrzené přiřazení.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Existuje alespoň jeden nepřiřazený řádek.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Existuje alespoň jedna nepotvrzená změna.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Nebylo možné smazat všechny podřízené prvky, protože na některé odkazují i jiné sestavy!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Mapování projektu %1 bylo odebráno.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Mapování projektu %1 bylo přidáno.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Chyba při kopírování podmínky:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Chyba při kopírování přiřazení proměnné.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Upravit vzorec</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Vzorec...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>U tohoto řádku je konflikt. Přiřazení je třeba potvrdit nebo opravit</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Celkový počet řádků</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Vybrat skupinu</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Výběru pod stromem neodpovídá žádný projekt.
Vypněte „%1“, aby byly zase vidět všechny projekty.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Nebyly nalezeny žádné chyby</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Žádný řádek není bez přiřazení.
Bez zaškrtnutí „%1“ jsou vidět všechny řádky.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klasifikovat</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Zobrazit legendu</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Správce odkazů</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Otevřít správce odkazů</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Přihlášení</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nový...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Vytvořit nový záznam</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Vložit nový záznam (převezme hodnoty označeného záznamu)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Nenalezené řádky</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Označení normy</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Číslo normy</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Zobrazit jen řádky přiřazené vícekrát</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Zobrazit jen řádky původní tabulky přiřazené tomuto řádku</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Cesta:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Vybrat projekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Hledat nebo vybrat projekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Otevřít projekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Cesta k projektu:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Chystáte se smazat sestavu, která obsahuje podřízené prvky. Mají se smazat i všechny podřízené prvky?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Zkontrolovat syntaxi</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Vybrat řádek tabulky</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Proměnná</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorovat proměnnou</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Mapování proměnných</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Přidat přiřazení proměnné</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Zobrazit skryté sloupce</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Vaše změny, které nebylo možné převzít:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Vámi plánovaná změna:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Zapnout a vypnout přednostní řady</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Přednostní řady zap/vyp</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Vybrat proměnné s rozsahem hodnot</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Upravit přiřazení rozsahů hodnot</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Kombinace hodnot: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET označeného dokumentu:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Zobrazit jen projekty s nepřiřazenými řádky</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Zobrazit jen projekty s neúplným mapováním</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Zobrazit jen projekty s přiřazenými řádky</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Zobrazit jen nepřiřazené řádky (zdrojový projekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Zobrazit jen nepřiřazené řádky (cílový projekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Přiřazuje se řádek s LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Znovu přiřadit řádky</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Řádky se znovu přiřazují</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Řádky: %1 z %2 · otevřené, které by byly přiřazeny: %3 · potvrzené, které by už neodpovídaly: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Číslo řádku</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Cílový projekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Odebrat cílový projekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Přidat cílový projekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Posunout cílový projekt nahoru</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Posunout cílový projekt dolů</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Cílová proměnná</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Přiřazení ke kontrole</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Potvrdit přiřazení</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Zrušit přiřazení tohoto řádku</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Zrušit přiřazení tohoto řádku a potvrdit</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Smazat mapování</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Zrušit přiřazení k tomuto projektu</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Zrušit přiřazení k tomuto projektu a potvrdit (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>obsahuje chyby!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Přehled</translation>
    </message>
</context>
</TS>
