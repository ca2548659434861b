<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(ni bilo mogoče najti)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Sprememba drugega uporabnika:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Vrstica je bila označena kot opuščena.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Vrstica je bila dodeljena znova. Na novo dodeljena vrstica (lokalno) ne obstaja.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Ta vrstica je bila označena kot opuščena.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Ta vrstica je bila dodeljena vrstici&lt;br /&gt;%1 projekta %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nova dodelitev: &lt;br /&gt;%3 projekta %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Posodobitev zapisa ni uspela!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Dodeli označeno vrstico</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Trenutno dodeljena vrstica</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Potrdi vse dodelitve</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Ustvarjanje zapisa ni uspelo!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Dodeli razrešena območja vrednosti za to vrstico</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Dodeli razrešena območja vrednosti</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Iz izbora (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Prekliči izbor</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Izbor v upravitelja povezav</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Pošlji izbor upravitelju povezav</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Izberi</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Samodejno dodeljene vrstice</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Prikaži filtrirano drevo</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Zahtevaj številko ERP po e-pošti</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Uredi...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Ustvari pogoj za označeno vrstico in ga kopiraj v odložišče</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Dodaj pogoj</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Izbriši pogoj</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Pogoji</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Pogoji in dodelitve spremenljivk so predlagani. Veljajo, ko je potrjena ena vrstica cilja.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Overi/zamenjaj uporabnika</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Prepiši že dodeljene ciljne projekte</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Potrjene dodelitve</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Razreševanje območij vrednosti lahko traja zelo dolgo, odvisno od izbranih spremenljivk in velikosti tabele.
Res nadaljujem?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Dela ni mogoče izbrisati, ker se nanj sklicuje več sestavov!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Ciljni projekt %1 ne obstaja več</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Ciljni projekt s potjo %1 je bil odstranjen.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Ciljni projekt s potjo %1 je bil dodan.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Prikaži imena datotek namesto opisov</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Uredi zapis</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Dodaj zapis</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Izbriši zapis</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Dodaj zapis v zbirko povezav</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algoritem vsebuje napake:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Klic %1 ni uspel!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Zapisa ni mogoče izbrisati!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Pogoji projekta %1 so bili spremenjeni.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Različica ciljnega projekta s potjo %1 je bila spremenjena.
  Stari datum projekta: %2, novi datum projekta: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Tabele izvornega projekta ni bilo mogoče odpreti.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Tabele vsaj enega izvornega projekta ni bilo mogoče odpreti.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Različica tabele ciljnega projekta s potjo %1 je bila spremenjena.
  Stari datum tabele: %2, novi datum tabele: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Spremenljivka %1 v ciljni tabeli ne obstaja</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Preslikava spremenljivk projekta %1 je bila spremenjena.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Vrstica %1 je bila spremenjena.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Vrstice niso bile znova dodeljene in ostanejo, kot so. Teh ciljnih projektov ni mogoče prebrati: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Spremenljivka %1 ne obstaja v izvorni tabeli</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Ta vrstica je opuščena. Modelar je to potrdil</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Te vrstice ni bilo mogoče dodeliti</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Ta vrstica je bila dodeljena samodejno. Dodelitev je treba potrditi ali popraviti</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Modelar je potrdil to dodelitev</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Dodeli ta projekt označeni vrstici</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Seznam dokumentov</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Spremembe zaradi posodobitve preslikave ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Zahtevaj številko ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Prilepi</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Za to vrstico obstaja dodelitev območja vrednosti.
Dodelitev je treba spremeniti z ukazom »Uredi dodelitev območij vrednosti«</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Obstaja vsaj en spor.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Obstaja vsaj ena potrjena dodelitev.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Obstaja vsaj ena nedodeljena vrstica.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Obstaja vsaj ena nepotrjena sprememba.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Vseh podrejenih elementov ni bilo mogoče izbrisati, ker se na nekatere sklicujejo tudi drugi sestavi!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Preslikava projekta %1 je bila odstranjena.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Preslikava projekta %1 je bila dodana.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Napaka pri kopiranju pogoja:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Napaka pri kopiranju dodelitve spremenljivke.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Uredi formulo</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formula...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Za to vrstico obstaja spor. Dodelitev je treba potrditi ali popraviti</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Skupno število vrstic</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Izberi skupino</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Noben projekt ne ustreza izbiri pod drevesom.
Izklopite »%1«, da bodo spet vidni vsi projekti.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Ni napak</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Nobena vrstica ni brez dodelitve.
Brez kljukice pri »%1« so vidne vse vrstice.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Razvrsti</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Spori</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiraj</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Prikaži legendo</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Upravitelj povezav</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Odpri upravitelja povezav</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Prijava</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Izbriši</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ime</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Novo...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Ustvari nov zapis</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Vstavi nov zapis (prevzame vrednosti označenega zapisa)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Nenajdene vrstice</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Oznaka standarda</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Številka standarda</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Prikaži samo večkrat dodeljene vrstice</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Prikaži samo vrstice izvirne tabele, dodeljene tej vrstici</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Pot:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Izberi projekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Poišči ali izberi projekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Odpri projekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Pot projekta:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Izbrisati nameravate sestav, ki vsebuje podrejene elemente. Naj se izbrišejo tudi vsi podrejeni elementi?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Išči</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Preveri skladnjo</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Izberi vrstico tabele</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Spremenljivka</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Prezri spremenljivko</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Preslikava spremenljivk</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Dodaj dodelitev spremenljivke</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Prikaži skrite stolpce</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Vaše spremembe, ki jih ni bilo mogoče prevzeti:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Vaša načrtovana sprememba:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Vklopi in izklopi prednostne vrste</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Prednostne vrste vklop/izklop</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Vrednost</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Izberi spremenljivke območij vrednosti</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Uredi dodelitve območij vrednosti</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Kombinacije vrednosti: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET označenega dokumenta:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Prikaži samo projekte z nedodeljenimi vrsticami</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Prikaži samo projekte z nepopolnimi preslikavami</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Prikaži samo projekte z dodeljenimi vrsticami</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Prikaži samo nedodeljene vrstice (izvorni projekt)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Prikaži samo nedodeljene vrstice (ciljni projekt)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Dodeljevanje vrstice z LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Znova dodeli vrstice</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Vrstice se znova dodeljujejo</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Vrstice: %1 od %2 · odprte, ki bi bile dodeljene: %3 · potrjene, ki ne bi več ustrezale: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Številka vrstice</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Ciljni projekt</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Odstrani ciljni projekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Dodaj ciljni projekt</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Premakni ciljni projekt navzgor</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Premakni ciljni projekt navzdol</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Ciljna spremenljivka</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Dodelitve za preverjanje</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Potrdi dodelitev</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Prekliči dodelitev te vrstice</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Prekliči dodelitev te vrstice in potrdi</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Izbriši preslikavo</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Prekliči dodelitev temu projektu</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Prekliči dodelitev temu projektu in potrdi (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>vsebuje napake!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Pregled</translation>
    </message>
</context>
</TS>
