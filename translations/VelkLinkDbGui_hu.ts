<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(nem található)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Más felhasználó által végzett módosítás:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;A sort megszűntként jelölték meg.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;A sort újból hozzárendelték. Az újonnan hozzárendelt sor (helyben) nem létezik.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Ezt a sort megszűntként jelölték meg.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Ezt a sort a következő sorhoz rendelték:&lt;br /&gt;%1, projekt: %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Új hozzárendelés: &lt;br /&gt;%3, projekt: %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>A rekord frissítése nem sikerült!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>A kijelölt sor hozzárendelése</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Jelenleg hozzárendelt sor</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Minden hozzárendelés megerősítése</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>A rekord létrehozása nem sikerült!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>A sor feloldott értéktartományainak hozzárendelése</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Feloldott értéktartományok hozzárendelése</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>A kijelölésből (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Kijelölés megszakítása</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Kijelölés a hivatkozáskezelőnek</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Kijelölés küldése a hivatkozáskezelőnek</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Kiválasztás</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Automatikusan hozzárendelt sorok</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Szűrt fa megjelenítése</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>ERP-szám igénylése e-mailben</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Szerkesztés...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Feltétel előállítása a kijelölt sorhoz és másolása a vágólapra</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Feltétel hozzáadása</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Feltétel törlése</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Feltételek</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>A feltételek és a változó-hozzárendelések javaslatok. Akkor érvényesek, ha a cél egyik sorát megerősítették.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Felhasználó hitelesítése/váltása</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Már hozzárendelt célprojektek felülírása</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Leírás</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Megerősített hozzárendelések</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Az értéktartományok feloldása a kiválasztott változóktól és a táblázat méretétől függően nagyon sokáig tarthat.
Valóban folytatja?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Az alkatrész nem törölhető, mert több összeállítás hivatkozik rá!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>A(z) %1 célprojekt már nem létezik</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>A(z) %1 útvonalú célprojekt eltávolítva.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>A(z) %1 útvonalú célprojekt hozzáadva.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Fájlnevek megjelenítése leírások helyett</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Rekord szerkesztése</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Rekord hozzáadása</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Rekord törlése</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Rekord hozzáadása a hivatkozási adatbázishoz</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Az algoritmus hibákat tartalmaz:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>A(z) %1 hívása nem sikerült!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>A rekord nem törölhető!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>A(z) %1 projekt feltételei megváltoztak.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>A(z) %1 útvonalú célprojekt projektváltozata megváltozott.
  Régi projektdátum: %2, új projektdátum: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>A forrásprojekt táblázatát nem lehetett megnyitni.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Legalább egy forrásprojekt táblázatát nem lehetett megnyitni.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>A(z) %1 útvonalú célprojekt táblázatváltozata megváltozott.
  Régi táblázatdátum: %2, új táblázatdátum: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>A(z) %1 változó nem létezik a céltáblázatban</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>A(z) %1 projekt változóleképezése megváltozott.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>A(z) %1 sor megváltozott.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>A sorok nem lettek újra hozzárendelve, és változatlanok maradnak. Ezek a célprojektek nem olvashatók: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>A(z) %1 változó nem létezik a forrástáblában</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Ez a sor megszűnt. A modellező megerősítette</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Ezt a sort nem lehetett hozzárendelni</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Ez a sor automatikusan lett hozzárendelve. A hozzárendelést meg kell erősíteni vagy javítani kell</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>A modellező megerősítette ezt a hozzárendelést</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>A projekt hozzárendelése a kijelölt sorhoz</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Dokumentumlista</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Az ERP-leképezés frissítése által végzett módosítások: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>ERP-szám igénylése</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Beillesztés</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Ehhez a sorhoz értéktartomány-hozzárendelés létezik.
A hozzárendelést az „Értéktartomány-hozzárendelés szerkesztése” paranccsal kell módosítani</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Legalább egy ütközés van.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Legalább egy megerősített hozzárendelés van.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Legalább egy sor nincs hozzárendelve.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Legalább egy meg nem erősített módosítás van.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Nem törölhető minden alelem, mert néhányra más összeállítások is hivatkoznak!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>A(z) %1 projekt egy leképezése eltávolítva.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>A(z) %1 projekt egy leképezése hozzáadva.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Hiba a feltétel másolásakor:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Hiba a változó-hozzárendelés másolásakor.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Képlet szerkesztése</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Képlet...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Ennél a sornál ütközés van. A hozzárendelést meg kell erősíteni vagy javítani kell</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Sorok száma összesen</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Csoport kiválasztása</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalógus</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Egyetlen projekt sem felel meg a fa alatti választásnak.
Kapcsolja ki ezt: „%1”, hogy újra minden projekt látsszon.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Nincs hiba</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Nincs hozzárendelés nélküli sor.
A(z) „%1” jelölése nélkül minden sor látszik.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Osztályozás</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Ütközések</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Másolás</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Jelmagyarázat megjelenítése</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Hivatkozáskezelő</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Hivatkozáskezelő megnyitása</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Bejelentkezés</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Új...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Új rekord létrehozása</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Új rekord beszúrása (átveszi a kijelölt rekord értékeit)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Nem talált sorok</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Szabvány megnevezése</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Szabvány száma</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Csak a többször hozzárendelt sorok</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Csak az eredeti táblázat ehhez a sorhoz rendelt sorai</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Útvonal:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Projekt kiválasztása</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Projekt keresése vagy kiválasztása</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Projekt megnyitása</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Projekt útvonala:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Egy alelemeket tartalmazó összeállítást készül törölni. Az összes alelemet is törli?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Szintaxis ellenőrzése</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Táblázatsor kiválasztása</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Változó</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Változó figyelmen kívül hagyása</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Változók leképezése</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Változó-hozzárendelés hozzáadása</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Rejtett oszlopok megjelenítése</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Az Ön módosításai, amelyeket nem lehetett átvenni:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Az Ön tervezett módosítása:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Előnyben részesített sorok be- és kikapcsolása</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Előnyben részesített sorok be/ki</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Értéktartomány-változók kiválasztása</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Értéktartomány-hozzárendelések szerkesztése</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Értékkombinációk: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>A kijelölt dokumentum XVARSET értéke:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Csak a hozzá nem rendelt sorokat tartalmazó projektek</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Csak a hiányos leképezésű projektek</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Csak a hozzárendelt sorokat tartalmazó projektek</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Csak a hozzá nem rendelt sorok (forrásprojekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Csak a hozzá nem rendelt sorok (célprojekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>A(z) %1 LineID-jű sor hozzárendelése...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Sorok újbóli hozzárendelése</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Sorok újbóli hozzárendelése folyik</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Sorok: %1 / %2 · nyitott, amely hozzárendelődne: %3 · megerősített, amely már nem illene: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Sor száma</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Célprojekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Célprojekt eltávolítása</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Célprojekt hozzáadása</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Célprojekt mozgatása felfelé</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Célprojekt mozgatása lefelé</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Célváltozó</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Ellenőrizendő hozzárendelések</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Hozzárendelés megerősítése</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>A sor hozzárendelésének megszüntetése</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>A sor hozzárendelésének megszüntetése és megerősítése</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Leképezés törlése</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>A projekthez rendelés megszüntetése</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>A projekthez rendelés megszüntetése és megerősítése (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>hibát tartalmaz!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Áttekintés</translation>
    </message>
</context>
</TS>
