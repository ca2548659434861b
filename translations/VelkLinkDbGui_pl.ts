<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(nie można było znaleźć)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Zmiana wykonana przez innego użytkownika:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Wiersz oznaczono jako wycofany.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;Wiersz przypisano ponownie. Nowo przypisany wiersz (lokalnie) nie istnieje.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Ten wiersz oznaczono jako wycofany.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Ten wiersz przypisano do wiersza&lt;br /&gt;%1 projektu %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nowe przypisanie: &lt;br /&gt;%3 projektu %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>Aktualizacja rekordu nie powiodła się!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Przypisz zaznaczony wiersz</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Aktualnie przypisany wiersz</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Potwierdź wszystkie przypisania</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>Utworzenie rekordu nie powiodło się!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Przypisz rozwinięte zakresy wartości dla tego wiersza</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Przypisz rozwinięte zakresy wartości</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>Z zaznaczenia (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Anuluj wybór</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Wybór do menedżera łączy</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Wyślij wybór do menedżera łączy</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Wiersze przypisane automatycznie</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Pokaż przefiltrowane drzewo</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Zamów numer ERP e-mailem</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Edytuj...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Utwórz warunek dla zaznaczonego wiersza i skopiuj go do schowka</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Dodaj warunek</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Usuń warunek</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Warunki</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Warunki i mapowania zmiennych są propozycją. Obowiązują, gdy jeden wiersz celu zostanie potwierdzony.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Uwierzytelnij/zmień użytkownika</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Zastąp już przypisane projekty docelowe</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Potwierdzone przypisania</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Rozwijanie zakresów wartości może trwać bardzo długo, zależnie od wybranych zmiennych i wielkości tabeli.
Naprawdę kontynuować?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>Nie można usunąć części, ponieważ odwołuje się do niej kilka złożeń!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Projekt docelowy %1 już nie istnieje</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Usunięto projekt docelowy o ścieżce %1.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Dodano projekt docelowy o ścieżce %1.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Pokaż nazwy plików zamiast opisów</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Edytuj rekord</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Dodaj rekord</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Usuń rekord</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Dodaj rekord do bazy łączy</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>Algorytm zawiera błędy:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>Wywołanie %1 nie powiodło się!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>Nie można usunąć rekordu!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Zmieniono warunki projektu %1.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Zmieniono wersję projektu docelowego o ścieżce %1.
  Stara data projektu: %2, nowa data projektu: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>Nie można było otworzyć tabeli projektu źródłowego.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>Nie można było otworzyć tabeli co najmniej jednego projektu źródłowego.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Zmieniono wersję tabeli projektu docelowego o ścieżce %1.
  Stara data tabeli: %2, nowa data tabeli: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>Zmienna %1 nie istnieje w tabeli docelowej</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Zmieniono mapowanie zmiennych projektu %1.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Zmieniono wiersz %1.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Wiersze nie zostały ponownie przypisane i pozostają bez zmian. Nie można odczytać tych projektów docelowych: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>Zmienna %1 nie istnieje w tabeli źródłowej</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Ten wiersz został wycofany. Potwierdził to konstruktor</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Nie można było przypisać tego wiersza</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Ten wiersz przypisano automatycznie. Przypisanie trzeba potwierdzić lub poprawić</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Konstruktor potwierdził to przypisanie</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Przypisz ten projekt do zaznaczonego wiersza</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Lista dokumentów</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Zmiany wykonane przez aktualizację mapowania ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Zamów numer ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Dla tego wiersza istnieje przypisanie zakresu wartości.
Przypisanie trzeba zmienić poleceniem „Edytuj przypisanie zakresów wartości”</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Istnieje co najmniej jeden konflikt.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Istnieje co najmniej jedno potwierdzone przypisanie.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Istnieje co najmniej jeden nieprzypisany wiersz.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Istnieje co najmniej jedna niepotwierdzona zmiana.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Nie można było usunąć wszystkich elementów podrzędnych, ponieważ do niektórych odwołują się także inne złożenia!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Usunięto mapowanie projektu %1.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Dodano mapowanie projektu %1.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Błąd podczas kopiowania warunku:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Błąd podczas kopiowania mapowania zmiennych.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Edytuj formułę</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formuła...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Dla tego wiersza istnieje konflikt. Przypisanie trzeba potwierdzić lub poprawić</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Łączna liczba wierszy</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Wybierz grupę</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Żaden projekt nie pasuje do wyboru pod drzewem.
Aby znów zobaczyć wszystkie projekty, wyłącz „%1”.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Nie znaleziono błędów</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Żaden wiersz nie jest bez przypisania.
Bez zaznaczenia „%1” widać wszystkie wiersze.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Klasyfikuj</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Pokaż legendę</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Menedżer łączy</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Otwórz menedżera łączy</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logowanie</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nowy...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Utwórz nowy rekord</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Wstaw nowy rekord (przejmuje wartości zaznaczonego rekordu)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Nieznalezione wiersze</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Oznaczenie normy</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Numer normy</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Pokaż tylko wiersze przypisane wielokrotnie</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Pokaż tylko wiersze tabeli oryginalnej przypisane do tego wiersza</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Ścieżka:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Wybierz projekt</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Wyszukaj lub wybierz projekt</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Otwórz projekt</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Ścieżka projektu:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Zamierzasz usunąć złożenie, które zawiera elementy podrzędne. Czy usunąć także wszystkie elementy podrzędne?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Sprawdź składnię</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Wybierz wiersz tabeli</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Zmienna</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignoruj zmienną</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Mapowanie zmiennych</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Dodaj mapowanie zmiennych</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Pokaż ukryte kolumny</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Wykonane przez Ciebie zmiany, których nie można było przejąć:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Zaplanowana przez Ciebie zmiana:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Włącz i wyłącz szeregi preferowane</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Szeregi preferowane wł./wył.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Wybierz zmienne z zakresem wartości</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Edytuj przypisania zakresów wartości</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Kombinacje wartości: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET zaznaczonego dokumentu:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Pokaż tylko projekty z nieprzypisanymi wierszami</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Pokaż tylko projekty z niepełnym mapowaniem</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Pokaż tylko projekty z przypisanymi wierszami</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Pokaż tylko nieprzypisane wiersze (projekt źródłowy)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Pokaż tylko nieprzypisane wiersze (projekt docelowy)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Przypisywanie wiersza o LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Przypisz wiersze ponownie</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Wiersze są przypisywane ponownie</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Wiersze: %1 z %2 · otwarte, które zostałyby przypisane: %3 · potwierdzone, które już by nie pasowały: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Numer wiersza</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projekt docelowy</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Usuń projekt docelowy</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Dodaj projekt docelowy</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Przesuń projekt docelowy w górę</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Przesuń projekt docelowy w dół</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Zmienna docelowa</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Przypisania do sprawdzenia</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Potwierdź przypisanie</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Usuń przypisanie tego wiersza</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Usuń przypisanie tego wiersza i potwierdź</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Usuń mapowanie</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Usuń przypisanie do tego projektu</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Usuń przypisanie do tego projektu i potwierdź (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>zawiera błędy!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Przegląd</translation>
    </message>
</context>
</TS>
