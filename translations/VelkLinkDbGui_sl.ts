<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Vrstica %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(ni bilo mogoče najti)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 od %2</translation>
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
        <source>Abbrechen</source>
        <translation>Prekliči</translation>
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
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Odstrani vse filtre stolpcev</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Potrdi vse dodelitve</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Nadaljevano na začetku tabele</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Nadaljevano na koncu tabele</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Tudi drug ciljni projekt ima vrstico s temi vrednostmi.
  Projekt: %1
  Vrstica: %2</translation>
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
        <source>Bedingung löschen</source>
        <translation>Izbriši pogoj</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Pogoji</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Overi/zamenjaj uporabnika</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Potrjene dodelitve</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Počakajte</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Prekliče delo</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Razreševanje območij vrednosti lahko traja zelo dolgo, odvisno od izbranih spremenljivk in velikosti tabele.
Res nadaljujem?</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>Projekt ne leži v mapi kataloga %1</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Ciljni projekt %1 ne obstaja več</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Ciljni projekt ima drugačno ime kot izvorni in nobena dodelitev vanj ni potrjena.
  Izvorni projekt: %1
  Ciljni projekt: %2</translation>
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
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Besedilu manjka zaključni opuščaj</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>Izraz je pregloboko gnezden</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Besedilo je prazno</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Pogoji projekta %1 so bili spremenjeni.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>Funkcija %1 ni znana</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Obrazca %1 ni mogoče naložiti: %2</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Oznaki standarda se razlikujeta.
  Stara oznaka: %1
  Nova oznaka: %2</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>Tabele ciljnega projekta ni bilo mogoče prebrati.
  Projekt: %1</translation>
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
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>Spremenljivka %1 ni znana</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Preslikava spremenljivk projekta %1 je bila spremenjena.</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Vrednosti spremenljivke %1 se razlikujejo.
  Stara vrednost: %2
  Nova vrednost: %3</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Vrstica %1 je bila spremenjena.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>Večina vrstic ima v ciljnem projektu druge vrednosti.
  Ciljni projekt: %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>Dodeljena vrstica v ciljni tabeli ne obstaja.
  Projekt: %1
  Vrstica: %2</translation>
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
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Pogoj ciljnega projekta ni izpolnjen.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Pogoj mora biti primerjava</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Formula mora spremenljivki prirediti vrednost</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>Pričakovano: %1, najdeno: %2</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Pričakovana je prireditev spremenljivki %1</translation>
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
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Preslikava projekta %1 je bila odstranjena.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Preslikava projekta %1 je bila dodana.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Napačno število argumentov funkcije %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
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
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Tu je pričakovana primerjava, ne vrednost</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Tu je pričakovana vrednost, ne primerjava</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Išči v tabeli</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
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
        <source>Nicht gefunden</source>
        <translation>Ni najdeno</translation>
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
        <source>Nächste Fundstelle (F3)</source>
        <translation>Naslednji zadetek (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Pot:</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Odpri projekt</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>Projekti (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Pot projekta:</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>Izvor in cilj nimata skupne spremenljivke z vrednostjo.</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Odstrani razvrščanje</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Razvrsti stolpec padajoče</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Razvrsti stolpec naraščajoče</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Prilagodi širine stolpcev</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filter stolpca</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filter stolpca %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Zapri iskanje (Esc)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Išči...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Tabela %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Izberi vrstico tabele</translation>
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
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Prejšnji zadetek (Shift+F3)</translation>
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
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice izvorne tabele.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>Te vrednosti imajo tudi druge vrstice ciljne tabele.</translation>
    </message>
    <message>
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Območje vrednosti (vrednosti: %1): %2</translation>
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
        <source>Wird abgebrochen...</source>
        <translation>Preklicevanje...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET označenega dokumenta:</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Znak %1: %2</translation>
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
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Prikaže vrstice, katerih vrednost vsebuje besedilo. Z =, &lt;, &lt;=, &gt; ali &gt;= na začetku se primerja.</translation>
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
        <source>Zeilennummer</source>
        <translation>Številka vrstice</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Ciljni projekt</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>Izberi ciljni projekt</translation>
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
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Premalo vrednosti vrstice ima par v ciljni tabeli.
  Brez para: %1</translation>
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
        <source>das Ende</source>
        <translation>konec</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>operator ali konec</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>ime spremenljivke</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>vrednost</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>zaklepaj</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>vsebuje napake!</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>brez vrednosti</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>še %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Pregled</translation>
    </message>
</context>
</TS>
