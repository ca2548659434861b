<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Řádek %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(nepodařilo se najít)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 z %2</translation>
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
        <source>Abbrechen</source>
        <translation>Zrušit</translation>
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
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Zrušit všechny filtry sloupců</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Potvrdit všechna přiřazení</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Pokračuje se od začátku tabulky</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Pokračuje se od konce tabulky</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Řádek s těmito hodnotami má i jiný cílový projekt.
  Projekt: %1
  Řádek: %2</translation>
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
        <source>Bedingung löschen</source>
        <translation>Smazat podmínku</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Podmínky</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Ověřit/změnit uživatele</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Potvrzená přiřazení</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Čekejte, prosím</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Zruší práci</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Rozložení rozsahů hodnot může podle zvolených proměnných a velikosti tabulky trvat velmi dlouho.
Opravdu pokračovat?</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>Projekt neleží pod složkou katalogu %1</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Cílový projekt %1 již neexistuje</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Cílový projekt má jiný název než zdrojový a žádné přiřazení k němu není potvrzeno.
  Zdrojový projekt: %1
  Cílový projekt: %2</translation>
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
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Textu chybí uzavírací apostrof</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Výraz je příliš hluboce vnořený</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Text je prázdný</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Podmínky projektu %1 byly změněny.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkce %1 není známa</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Formulář %1 nelze načíst: %2</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Označení normy se liší.
  Staré označení: %1
  Nové označení: %2</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabulku cílového projektu se nepodařilo přečíst.
  Projekt: %1</translation>
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
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Proměnná %1 není známa</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Mapování proměnných projektu %1 bylo změněno.</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Hodnoty proměnné %1 se liší.
  Stará hodnota: %2
  Nová hodnota: %3</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Řádek %1 byl změněn.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Většina řádků má v cílovém projektu jiné hodnoty.
  Cílový projekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Přiřazený řádek v cílové tabulce neexistuje.
  Projekt: %1
  Řádek: %2</translation>
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
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Podmínka cílového projektu není splněna.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Podmínka musí být porovnání</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Vzorec musí přiřadit hodnotu proměnné</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Očekáváno: %1, nalezeno: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Očekává se přiřazení proměnné %1</translation>
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
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Mapování projektu %1 bylo odebráno.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Mapování projektu %1 bylo přidáno.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Chybný počet argumentů funkce %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
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
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Zde se očekává porovnání, ne hodnota</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Zde se očekává hodnota, ne porovnání</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Hledat v tabulce</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
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
        <source>Nicht gefunden</source>
        <translation>Nenalezeno</translation>
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
        <source>Nächste Fundstelle (F3)</source>
        <translation>Další výskyt (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Cesta:</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Otevřít projekt</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>Projekty (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Cesta k projektu:</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Zdroj a cíl nemají společnou proměnnou s hodnotou.</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Zrušit řazení</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Seřadit sloupec sestupně</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Seřadit sloupec vzestupně</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Přizpůsobit šířku sloupců</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtr sloupce</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtr sloupce %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Zavřít hledání (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Hledat...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabulka %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Vybrat řádek tabulky</translation>
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
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Předchozí výskyt (Shift+F3)</translation>
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
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Tyto hodnoty mají i další řádky zdrojové tabulky.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Tyto hodnoty mají i další řádky cílové tabulky.</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Rozsah hodnot (%1 hodnot): %2</translation>
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
        <source>Wird abgebrochen...</source>
        <translation>Ruší se...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET označeného dokumentu:</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
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
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Zobrazí řádky, jejichž hodnota obsahuje text. S =, &lt;, &lt;=, &gt; nebo &gt;= na začátku se porovnává.</translation>
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
        <source>Zeilennummer</source>
        <translation>Číslo řádku</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Cílový projekt</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>Vybrat cílový projekt</translation>
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
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Příliš málo hodnot řádku má protějšek v cílové tabulce.
  Bez protějšku: %1</translation>
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
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operátor nebo konec</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>název proměnné</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>uzavírací závorka</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>obsahuje chyby!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>žádná hodnota</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>ještě %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Přehled</translation>
    </message>
</context>
</TS>
