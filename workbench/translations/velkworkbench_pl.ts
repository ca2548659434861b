<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Nie ma nic do zmiany.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Potwierdzić %Ln wiersz?</numerusform>
            <numerusform>Potwierdzić %Ln wiersze?</numerusform>
            <numerusform>Potwierdzić %Ln wierszy?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Potwierdzić %Ln wiersz jako wycofany?</numerusform>
            <numerusform>Potwierdzić %Ln wiersze jako wycofane?</numerusform>
            <numerusform>Potwierdzić %Ln wierszy jako wycofane?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Usunąć przypisanie %Ln wiersza?</numerusform>
            <numerusform>Usunąć przypisanie %Ln wierszy?</numerusform>
            <numerusform>Usunąć przypisanie %Ln wierszy?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Usunąć przypisanie %Ln wiersza i potwierdzić go jako wycofany?</numerusform>
            <numerusform>Usunąć przypisanie %Ln wierszy i potwierdzić je jako wycofane?</numerusform>
            <numerusform>Usunąć przypisanie %Ln wierszy i potwierdzić je jako wycofane?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln z nich jest już potwierdzony.</numerusform>
            <numerusform>%Ln z nich są już potwierdzone.</numerusform>
            <numerusform>%Ln z nich jest już potwierdzonych.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln z nich traci swoje przypisanie zakresów wartości.</numerusform>
            <numerusform>%Ln z nich tracą swoje przypisania zakresów wartości.</numerusform>
            <numerusform>%Ln z nich traci swoje przypisania zakresów wartości.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln wiersz bez celu pozostaje niepotwierdzony.</numerusform>
            <numerusform>%Ln wiersze bez celu pozostają niepotwierdzone.</numerusform>
            <numerusform>%Ln wierszy bez celu pozostaje niepotwierdzonych.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln wiersz pozostaje bez zmian.</numerusform>
            <numerusform>%Ln wiersze pozostają bez zmian.</numerusform>
            <numerusform>%Ln wierszy pozostaje bez zmian.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln wiersz z konfliktem nie zostanie zmieniony.</numerusform>
            <numerusform>%Ln wiersze z konfliktem nie zostaną zmienione.</numerusform>
            <numerusform>%Ln wierszy z konfliktem nie zostanie zmienionych.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln wiersz nie jest wpisany w żadnym projekcie docelowym.</numerusform>
            <numerusform>%Ln wiersze nie są wpisane w żadnym projekcie docelowym.</numerusform>
            <numerusform>%Ln wierszy nie jest wpisanych w żadnym projekcie docelowym.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>Potwierdzono %Ln wiersz.</numerusform>
            <numerusform>Potwierdzono %Ln wiersze.</numerusform>
            <numerusform>Potwierdzono %Ln wierszy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Potwierdzono %Ln wiersz jako wycofany.</numerusform>
            <numerusform>Potwierdzono %Ln wiersze jako wycofane.</numerusform>
            <numerusform>Potwierdzono %Ln wierszy jako wycofane.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Usunięto przypisanie %Ln wiersza.</numerusform>
            <numerusform>Usunięto przypisanie %Ln wierszy.</numerusform>
            <numerusform>Usunięto przypisanie %Ln wierszy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Usunięto przypisanie %Ln wiersza, potwierdzono jako wycofany.</numerusform>
            <numerusform>Usunięto przypisanie %Ln wierszy, potwierdzono jako wycofane.</numerusform>
            <numerusform>Usunięto przypisanie %Ln wierszy, potwierdzono jako wycofane.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>brak następcy</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Klawisz</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Pewność</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nowy wiersz</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Powód</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 tu już rozstrzygnięte lub pewne</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 bez wiersza w nowej wersji</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 wtedy potwierdzone jako wycofane</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 w projektach, których tu brak</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 tam w konflikcie</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Nie przejęto: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Z %1 nie ma czego przejąć.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Plik nie zawiera mapowania z wersji katalogu %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Także ten plik prowadzi do wersji katalogu %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Wybierz mapowanie, które prowadzi z tej samej starej wersji katalogu do wcześniejszej nowej.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Przejęto z %1: tam potwierdzone dla wersji katalogu %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Odczyt wcześniejszego mapowania</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Z %1 nie można nic przejąć.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Katalog wersji %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Szukanie projektów docelowych</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Przejmowanie decyzji</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Przerwano, nic nie przejęto</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Decyzje przejęte z %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Z %1 przejęto: %2 z %Ln potwierdzonego wiersza, %3 przypisano na pewno, %4 zaproponowano.</numerusform>
            <numerusform>Z %1 przejęto: %2 z %Ln potwierdzonych wierszy, %3 przypisano na pewno, %4 zaproponowano.</numerusform>
            <numerusform>Z %1 przejęto: %2 z %Ln potwierdzonych wierszy, %3 przypisano na pewno, %4 zaproponowano.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Folder starej wersji katalogu</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Folder nowej wersji katalogu</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Foldery katalogów</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Gdzie leżą obie wersje katalogu tego pliku mapowania? Foldery są zapamiętywane razem z plikiem.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Stara wersja (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Nowa wersja (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Potrzebne są oba foldery.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 nie jest folderem.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>W starej wersji brakuje %1. Szukany jest folder, w którym leży katalog %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>W nowej wersji brakuje katalogu %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Nie można pokazać wiersza %1 w %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Żaden wiersz nie jest w konflikcie</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Wszystkie konflikty są rozstrzygnięte; teraz zapisz</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Konflikt %1 z %2, nierozstrzygniętych jeszcze: %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln wiersz z %1 jest sprzeczny w ten sam sposób. Czy decyzja dotyczy wszystkich?</numerusform>
            <numerusform>%Ln wiersze z %1 są sprzeczne w ten sam sposób. Czy decyzja dotyczy wszystkich?</numerusform>
            <numerusform>%Ln wierszy z %1 jest sprzecznych w ten sam sposób. Czy decyzja dotyczy wszystkich?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Własna: %1
Inna: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Dla wszystkich</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Wiersz po wierszu</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Wiersz nie jest w żadnym konflikcie</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Własna decyzja nie jest znana: wiersz był w konflikcie już przy otwarciu</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Żaden wiersz nie jest w konflikcie.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Wszystkie konflikty są rozstrzygnięte.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>Jeszcze %Ln wiersz jest sprzeczny tak jak ten.</numerusform>
            <numerusform>Jeszcze %Ln wiersze są sprzeczne tak jak ten.</numerusform>
            <numerusform>Jeszcze %Ln wierszy jest sprzecznych tak jak ten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Strony konfliktu</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Własna</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Inna</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Rozstrzygnij od nowa</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>Nierozstrzygnięte konflikty: %1 z %Ln.</numerusform>
            <numerusform>Nierozstrzygnięte konflikty: %1 z %Ln.</numerusform>
            <numerusform>Nierozstrzygnięte konflikty: %1 z %Ln.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>nierozstrzygnięty</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>własna</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>inna</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nowa</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Własna decyzja</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Inna decyzja</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Obowiązuje</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>przypisany automatycznie</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>do sprawdzenia</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>potwierdzony</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>bez celu, otwarty</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potwierdzony jako wycofany</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, wiersz %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projekt docelowy</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Wiersz docelowy</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Zakresy wartości</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Stary wiersz</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Przedtem</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Własna decyzja</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Inna decyzja</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Dane</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>równe</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>zastąpione jak w jeszcze %Ln wierszu</numerusform>
            <numerusform>zastąpione jak w jeszcze %Ln wierszach</numerusform>
            <numerusform>zastąpione jak w jeszcze %Ln wierszach</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>podobne</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>różne</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>tylko w nowym wierszu</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>tylko w starym wierszu</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Zmienna</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Stare</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nowe</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>Tabela nie zawiera tego wiersza.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Bez celu. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Przypisany wiersz nie jest żadnym z kandydatów.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Stare i nowe</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandydaci</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Potwierdzony.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Przypisany na pewno.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln wiersz</numerusform>
            <numerusform>%Ln wiersze</numerusform>
            <numerusform>%Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>porównano: pierwsze %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Brak wspólnych różnic.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Wspólne: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Zaznaczone wiersze</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Wersja katalogu</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Plik zawiera kilka wersji katalogu. Którą otworzyć?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Odczyt pliku mapowania</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Nie można otworzyć pliku.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Plik jest otwarty tylko do odczytu.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Blokadę można usunąć, jeśli na pewno nikt już tam nie pracuje, na przykład po awarii komputera.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Tylko odczyt</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Usuń blokadę</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Nie udało się usunąć blokady.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogi nie są znane; podaje się je za pomocą --source i --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Zapisać zmiany w %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Odrzucone zmiany zostaną utracone.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Zapi&amp;sz</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Odrzuć</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln wiersz</numerusform>
            <numerusform>%1: %Ln wiersze</numerusform>
            <numerusform>%1: %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Jeszcze %Ln wiersz w konflikcie, w tych projektach:</numerusform>
            <numerusform>Jeszcze %Ln wiersze w konflikcie, w tych projektach:</numerusform>
            <numerusform>Jeszcze %Ln wierszy w konflikcie, w tych projektach:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Pokaż konflikty</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Zapisz &amp;mimo to</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Zapisano: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Plik nie został zapisany.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>S&amp;cal zmiany</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>Zachowaj &amp;kopię i zapisz od nowa</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Zapisz własną wersję</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Zmiany innych zostały przejęte. Sprawdź je, a potem zapisz jeszcze raz.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Nie udało się przejąć zmian innych.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Nie można utworzyć pliku mapowania.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Odczyt %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Nie można odczytać pliku mapowania %1 (%2).
Wybierz inny plik albo przywróć kopię zapasową %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Nie można odczytać pliku mapowania %1 (%2).
Wybierz inny plik.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 nie zawiera żadnej wersji.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 nie zawiera wersji %2. Dostępne: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 jest otwarty tylko do odczytu.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 jest właśnie edytowany przez %2 i dlatego otwarty tylko do odczytu.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>W folderze pliku %1 nie można zapisywać (%2). Dlatego plik jest otwarty tylko do odczytu; zapisany pod inną nazwą może być edytowany.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Dla %1 istnieje praca, która nie została zapisana. Zostanie zaproponowana, gdy tylko plik da się otworzyć do edycji (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 ma jeszcze inną nazwę (dowiązanie twarde). Przy zapisie plik pod inną nazwą pozostaje taki, jaki był.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Zapisywanie %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Tworzenie kopii zapasowej %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 jest właśnie edytowany przez %2. Nic nie zapisano. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>W folderze pliku %1 nie można nic utworzyć (%2). Nic nie zapisano. Wybierz inny folder.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Żaden wiersz tego projektu nie jest w filtrze.
Aby znów zobaczyć wszystkie wiersze, otwórz „%1” i wybierz „%2”.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Żaden projekt nie ma wiersza w filtrze.
Aby znów zobaczyć wszystkie projekty, otwórz „%1” i wybierz „%2”.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Pliki mapowania (*.json);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Otwórz plik mapowania</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Zapisz plik mapowania</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Zapisz tabelę</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabele (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Wybierz wspólną kopię</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Przejmij decyzje z</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filtr zdjęto: projekt nie ma w nim wiersza</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Osiągnięto koniec, dalej od początku</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Osiągnięto początek, dalej od końca</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>W filtrze nie ma już wierszy</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>zastąpiony tekst</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>przeliczona liczba</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Dlaczego otwarty</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Rodzaj różnicy</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Różnica w kolumnie</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Ostatnio zdecydował</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nikt</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(żadne z nich)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>nie wybrane</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Odczyt tabel...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln wiersz</numerusform>
            <numerusform>%Ln wiersze</numerusform>
            <numerusform>%Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>w %Ln projekcie</numerusform>
            <numerusform>w %Ln projektach</numerusform>
            <numerusform>w %Ln projektach</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Bez filtra: wszystkie wiersze</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Nieczytelne tabele: %Ln</numerusform>
            <numerusform>Nieczytelne tabele: %Ln</numerusform>
            <numerusform>Nieczytelne tabele: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtr wszystkich wierszy</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Z&amp;dejmij filtr</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Pochodzenie</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>przejęte z wcześniejszego mapowania</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 nie jest zwykłym plikiem i dlatego nie może służyć jako blokada. Nic nie zapisano. Usuń to, co tam jest.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 jest właśnie zapisywany przez inny program. Nic nie zapisano. Zapisz za chwilę jeszcze raz.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>W folderze pliku %1 nie można nic utworzyć (%2). Nic nie zapisano. Zwolnij miejsce albo zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>Nie można odczytać %1 (%2). Nic nie zapisano. Zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 nie jest czytelnym plikiem mapowania (%2). Nic nie zapisano. Przy zapisie istniejący plik zostanie zachowany pod nazwą ze znacznikiem czasu i powstanie nowy, który zawiera tylko tę wersję.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 nie jest czytelnym plikiem mapowania (%2). Nic nie zapisano. Przy zapisie istniejący plik zostanie zachowany pod nazwą ze znacznikiem czasu i powstanie nowy. Pozostałe wersje pochodzą z kopii zapasowej %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 jest nieczytelny i nie udało się go zachować jako %2 (%3). Nic nie zapisano. Zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 od chwili otwarcia został usunięty lub zmienił nazwę. Przy zapisie plik zostanie utworzony od nowa i będzie zawierał tylko tę wersję (%2). Jeszcze nic nie zapisano.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 od chwili otwarcia został zmieniony przez kogoś innego, ale nie ta wersja (%2). Przy zapisie pozostałe wersje pozostają takie, jakie są teraz w pliku. Jeszcze nic nie zapisano.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 od chwili otwarcia został zmieniony przez kogoś innego, także ta wersja (%2). Przy zapisie jego zmiany w tej wersji zostaną utracone. Jeszcze nic nie zapisano: zapisz mimo to, zapisz pod inną nazwą albo otwórz plik ponownie.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Nie można zapisywać w %1 (%2). Nic nie zapisano. Sprawdź uprawnienia do zapisu albo zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 nie został zapisany: %2. Plik jest niezmieniony, zmiany są nadal otwarte. Zwolnij miejsce i zapisz jeszcze raz albo zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>nie udało się zapisać całego pliku</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>zapisany plik jest nieczytelny (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>zapisany plik nie zawiera tego, co miało zostać zapisane</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>w zapisanym pliku brakuje wersji %1 albo jest ona inna</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Nie udało się utworzyć kopii zapasowej %1 (%2). Nic nie zapisano. Zwolnij miejsce albo zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 został zmieniony przez kogoś innego podczas zapisywania. Nic nie zapisano. Zapisz jeszcze raz.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 nie został zapisany: %2. Plik jest niezmieniony, zmiany są nadal otwarte. Zapisz pod inną nazwą.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Podręcznik</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Spis treści</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Szukaj na stronie</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Historia decyzji...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Kto o czym zdecydował, kiedy i dlaczego</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Powód decyzji...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Do ostatniej decyzji lub do wybranych wierszy, na przykład dlaczego nie ma następcy</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Wiersz %1 w %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln wiersz w %1</numerusform>
            <numerusform>%Ln wiersze w %1</numerusform>
            <numerusform>%Ln wierszy w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Zanotowano powód: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Historia decyzji</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Wybrany wiersz</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Wybrany projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Wszystkie projekty</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Szukaj: kto, projekt, cel lub powód</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Odczytaj od nowa</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Zapisz jako CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Nieczytelne wiersze dziennika: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Decyzje: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Nie można zapisać pliku.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>brak następcy</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (nie zapisano)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Dotychczas</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nowe</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Powód</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Przejęto z %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Folder z plikami CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Folder katalogu</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Import tabel</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Folder z plikami CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>Folder &amp;katalogu:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Z każdego pliku CSV powstaje projekt z tabelą w tym samym miejscu katalogu. Przy ponownym imporcie tabel numery wierszy zostają zachowane.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Brakuje folderu z plikami CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Brakuje folderu katalogu; zostanie utworzony, jeśli istnieje folder nadrzędny.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Jeden folder leży w drugim.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Potwierdź wiersz lub przypisz wybrany wiersz</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Usuń przypisanie wiersza</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Usuń przypisanie i potwierdź jako wycofany</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Edytuj przypisanie zakresów wartości</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopiuj warunek z wiersza</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Potwierdź cały projekt</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Szukaj w tabeli</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Szukaj dalej</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Szukaj wstecz</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtr kolumny</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopiuj wiersze</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Większa tabela</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Mniejsza tabela</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabela w normalnym rozmiarze</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Domyślny</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Brak klawisza</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Polecenie lub klawisz</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Gdzie</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Klawisz</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Klawisz dla: %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Klawisza %1 potrzebują same pola i listy.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Klawisz %1 miałyby %2 i %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Własny wybór</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 nie będzie wtedy mieć klawisza %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Klawisz %1 ma teraz %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nic nie znaleziono</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Potwierdzony: przypisanie jest rozstrzygnięte</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Propozycja: trzeba potwierdzić lub poprawić</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Bez obrazka: jednoznacznie równy, przypisany przez program</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Nie znaleziono przypisania</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Wycofany: potwierdzono, że nie ma przypisania</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Konflikt ze zmianą kogoś innego</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Nie można odczytać projektu lub tabeli</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Przypisania zakresów wartości wiersza</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>W tabeli docelowej: przypisany wiersz</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Warunek skopiowano do schowka</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Skopiowany warunek nie nadaje się jeszcze do użycia: brakuje wartości, jest ona zakresem lub zawiera cudzysłów: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Tu, w filtrze, wszystko gotowe; poza nim jest jeszcze %Ln otwarty wiersz.</numerusform>
            <numerusform>Tu, w filtrze, wszystko gotowe; poza nim są jeszcze %Ln otwarte wiersze.</numerusform>
            <numerusform>Tu, w filtrze, wszystko gotowe; poza nim jest jeszcze %Ln otwartych wierszy.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Osiągnięto koniec, dalej od początku</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Osiągnięto początek, dalej od końca</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Konflikt %1 z %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Żaden wiersz nie jest w jednym z wybranych stanów</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Żaden wiersz nie wymaga już decyzji</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Nie można pokazać żadnego z otwartych wierszy; brakuje tabel</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Przejdź do wiersza</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Numer lub oznaczenie normowe:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Przejdź</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Nie wybrano projektu</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>W tym projekcie nie ma wiersza z „%1”</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Trafienie %1 z %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Wykonaj</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Ten krok można cofnąć.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Chodzi o zaznaczone wiersze.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Chodzi o wszystkie wiersze projektu.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtr: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Żaden inny projekt nie ma takich wierszy</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Chodzi tylko o pokazane wiersze projektu: %1 z %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Konflikt</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze w konflikcie ze zmianą kogoś innego i ich projekty</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze z propozycją, którą trzeba potwierdzić lub poprawić, i ich projekty</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez celu</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze, dla których nic nie znaleziono, i ich projekty</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatyczny</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze jednoznacznie równe, przypisane przez program, i ich projekty</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potwierdzony</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze z potwierdzonym przypisaniem i ich projekty</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Wycofany</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Pokaż tylko wiersze potwierdzone jako wycofane i ich projekty</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Używaj bazy łączy</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Plik na tym komputerze</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Serwer PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>zwykły</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Hasło jest w pliku haseł, w magazynie kluczy pulpitu lub w PGPASSWORD albo jest wpisywane przy logowaniu. Nie jest zapisywane.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>jeśli to możliwe</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>zawsze</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>zawsze, serwer sprawdzony</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nigdy</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Rodzaj:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Plik:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Komputer:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>Po&amp;rt:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Baza danych:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>Uży&amp;tkownik:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Szyfrowanie:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Baza łączy: brakuje nazwy pliku.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Baza łączy: brakuje nazwy bazy danych lub nie jest to nazwa.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Sprawdź numery bazy łączy</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>W bazie łączy nie ma grupy, do której należysz.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Wybierz grupę</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Grupa bazy łączy:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Wiersza %1 z %2 nie ma w tym mapowaniu.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Sprawdzanie numerów bazy łączy</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Nie udało się sprawdzić numerów.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Zmiany w bazie łączy mogły zostać utracone.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Brakuje licencji na bazę łączy.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Logowanie do bazy łączy</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Hasło obowiązuje do końca programu i nie jest zapisywane. Jeśli pozostanie puste, pochodzi z pliku haseł.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Pod tą nazwą protokół podaje, kto coś usunął.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Menedżer łączy</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Szukaj numeru, projektu lub opisu</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Pokaż wiersz</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>Połącz z &amp;innym wierszem...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Następnie wybierz projekt i wiersz i wyślij wybór poleceniem „Wybór do menedżera łączy”.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Ostatnio usunięte...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Łącza: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Nie usunięto niczego, co można by przywrócić.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Przywrócić ostatnio usunięte? Wiersze: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 usunął(-ęła) je %2 z %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>P&amp;rzywróć</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Pierwsze %Ln łącze; wyszukiwanie pokazuje inne.</numerusform>
            <numerusform>Pierwsze %Ln łącza; wyszukiwanie pokazuje inne.</numerusform>
            <numerusform>Pierwszych %Ln łączy; wyszukiwanie pokazuje inne.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Sprawdzenie numerów</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numery przy projektach tego mapowania: %1, przy innych projektach: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Nie porównano, bo nieczytelne: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Wiersz wycofany lub nie istnieje</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potwierdzony jako wycofany</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projekt go nie ma</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Zajęty przez kilka wierszy</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Część się różni</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Część się różni (nie porównano)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Otwarte wiersze z numerami</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numery: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Wiersz %1 nie istnieje w %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Nie można pokazać projektu %1.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, wiersz, polecenie lub ustawienie</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Znalezione</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Wystarczą części słów; liczba na końcu oznacza wiersz.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln trafienie</numerusform>
            <numerusform>%Ln trafienia</numerusform>
            <numerusform>%Ln trafień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Pierwsze trafienia: %1 z %Ln</numerusform>
            <numerusform>Pierwsze trafienia: %1 z %Ln</numerusform>
            <numerusform>Pierwsze trafienia: %1 z %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Wiersz %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Ustawienie</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Błąd: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Ostrzeżenie: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Komunikaty</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Wyczyść komunikaty</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopiuj wszystkie komunikaty</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Użytkownik:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Hasło:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Brak połączenia z bazą łączy: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Nie można odczytać numerów ERP. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Wiersze przypisane ponownie: bez zmian</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Tu nie ma takiego wiersza. %1 przechodzi do następnego.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>tylko do odczytu</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Po lewej jest stara wersja katalogu. Obrazki pokazują, gdzie jest jeszcze coś do rozstrzygnięcia. Wybierz projekt, aby zobaczyć jego wiersze.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Cele</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Tu są projekty nowej wersji, które mogą przejąć wiersze, z warunkami i mapowaniami zmiennych.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Po lewej stara tabela, po prawej nowa. %1 potwierdza przypisanie lub przypisuje wiersz wybrany po prawej, %2 je usuwa, %3 potwierdza, że wiersz jest wycofany.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Co jest jeszcze otwarte</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Licznik mówi, ile wierszy wymaga decyzji. %1 przechodzi do następnego, także w następnym projekcie.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nic nie ginie</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Każdy krok można cofnąć. Po awarii program proponuje odzyskanie tego, co nie zostało zapisane. Przewodnik jest w menu Pomoc.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Przypisać wiersze całego katalogu?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Potwierdzone pozostaje w każdym przypadku. Ten krok można cofnąć.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Tylko wiersze bez przypisania</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Wszystko niepotwierdzone od nowa</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Przypisano wszystkie projekty</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Projekt docelowy %1 nie istnieje.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Projekt docelowy: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Ustawienia: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Dla tego miejsca nie ma wskazówki</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Wyczyść listę</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Udostępnianie</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Ostatnio otwarte</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>P&amp;rzejdź</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>Pr&amp;zegląd</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Tylko wiersze</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>Po&amp;moc</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Baza łączy</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Stany wierszy</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Narzędzia</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Żaden plik nie jest otwarty do edycji.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Własne zmiany na wersji z pliku</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln konflikt: własna decyzja</numerusform>
            <numerusform>%Ln konflikty: własna decyzja</numerusform>
            <numerusform>%Ln konfliktów: własna decyzja</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln konflikt: decyzja drugiej strony</numerusform>
            <numerusform>%Ln konflikty: decyzja drugiej strony</numerusform>
            <numerusform>%Ln konfliktów: decyzja drugiej strony</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln konflikt: do rozstrzygnięcia od nowa</numerusform>
            <numerusform>%Ln konflikty: do rozstrzygnięcia od nowa</numerusform>
            <numerusform>%Ln konfliktów: do rozstrzygnięcia od nowa</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Nie można pisać w dzienniku %1 (%2). Po awarii zmiany byłyby utracone: zapisz wkrótce.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Nie można zabezpieczyć odzyskanej wersji (%1). Zwolnij miejsce i otwórz jeszcze raz; dziennik jest niezmieniony.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Odzyskiwanie po awarii</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Nie można utworzyć dziennika %1 (%2). Po awarii zmiany byłyby utracone: zapisuj często.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Nie jest otwarty żaden plik mapowania.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Właśnie trwa zapisywanie.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Nie zapisano. %1 Zapisz pod inną nazwą.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Blokada %1 została utracona i nie można jej odnowić. Inni mogliby edytować plik w tym samym czasie.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Automatyczny zapis nie udał się (%1). Zapisz wkrótce.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Zmiana nie została przejęta. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Oznaczono konflikty</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Ponowiono: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>„%1” nie pasuje już do tego, co zmieniono później. Lista kroków mówi, co stoi na przeszkodzie.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Szukanie projektów docelowych</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Przerwano, nic nie utworzono</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Przypisywanie wierszy</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: w tym samym miejscu %1, w innym %2, podzielone %3, bez celu %4, nieczytelne %5</numerusform>
            <numerusform>%Ln projekty: w tym samym miejscu %1, w innym %2, podzielone %3, bez celu %4, nieczytelne %5</numerusform>
            <numerusform>%Ln projektów: w tym samym miejscu %1, w innym %2, podzielone %3, bez celu %4, nieczytelne %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 z %Ln projektu</numerusform>
            <numerusform>%1 z %Ln projektów</numerusform>
            <numerusform>%1 z %Ln projektów</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>w tym przypisane %1, do sprawdzenia %2, bez celu %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Przerwano: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln wierszem</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>Przejęto %Ln zmianę.</numerusform>
            <numerusform>Przejęto %Ln zmiany.</numerusform>
            <numerusform>Przejęto %Ln zmian.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln wiersz obie strony rozstrzygnęły tak samo.</numerusform>
            <numerusform>%Ln wiersze obie strony rozstrzygnęły tak samo.</numerusform>
            <numerusform>%Ln wierszy obie strony rozstrzygnęły tak samo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln wiersz rozstrzygnięto różnie i oznaczono jako konflikt.</numerusform>
            <numerusform>%Ln wiersze rozstrzygnięto różnie i oznaczono jako konflikt.</numerusform>
            <numerusform>%Ln wierszy rozstrzygnięto różnie i oznaczono jako konflikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln inna sprzeczność: obowiązuje wersja z pliku.</numerusform>
            <numerusform>%Ln inne sprzeczności: obowiązuje wersja z pliku.</numerusform>
            <numerusform>%Ln innych sprzeczności: obowiązuje wersja z pliku.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Nie można pokazać wiersza %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Nie wybrano żadnego znaleziska</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Naprawiono: %1 w %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabele są porównywane</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>Obejrzano %Ln przypisany wiersz</numerusform>
            <numerusform>Obejrzano %Ln przypisane wiersze</numerusform>
            <numerusform>Obejrzano %Ln przypisanych wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln znalezisko</numerusform>
            <numerusform>%Ln znaleziska</numerusform>
            <numerusform>%Ln znalezisk</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Sąsiedztwo</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Wiersze od %1 do %2 są przesunięte o %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Wiersze %1 i %2 są zamienione</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Wiersz %1 jest obok o %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Wiersz %1 ma wiersz docelowy innego</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Wiersz %1 jest pominięty</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>nierozstrzygnięty</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Naprawiono: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Znalezisko</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Naprawiono</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Folder starej wersji katalogu</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Folder nowej wersji katalogu</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Od &amp;razu przypisz wiersze</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nowe mapowanie</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Stara wersja katalogu:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog w nim:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Nowa wersja katalogu:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Wybierz plik mapowania</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Plik mapowania:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>U&amp;twórz</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Brakuje folderu starej wersji katalogu.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Brakuje folderu nowej wersji katalogu.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Każda wersja potrzebuje folderu z katalogiem.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Plik mapowania potrzebuje nazwy.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Folder %1 nie istnieje.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 już istnieje.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Przy zapisie dochodzi nowa wersja; wersja z tą samą datą zostaje zastąpiona, ze wszystkim, co jest w niej potwierdzone.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Użyj tego pliku</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>nośnik jest pełny</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>plik staje się większy, niż tu wolno</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>brak prawa zapisu</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>nośnik jest chroniony przed zapisem</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>folderu lub pliku już nie ma</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>w jego miejscu jest coś innego niż zwykły plik</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>bez celu</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Stary wiersz</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nowy wiersz</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Inne różnice</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Nie można odczytać tabeli projektu.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Ścieżka:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norma:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Oznaczenie:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Wersja projektu:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Wersja tabeli:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Wiersze:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Plik:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtruj</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln otwarty wiersz z propozycją</numerusform>
            <numerusform>%Ln otwarte wiersze z propozycją</numerusform>
            <numerusform>%Ln otwartych wierszy z propozycją</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>w %Ln wzorcu</numerusform>
            <numerusform>w %Ln wzorcach</numerusform>
            <numerusform>w %Ln wzorcach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln z nich jest jeszcze porównywany</numerusform>
            <numerusform>%Ln z nich są jeszcze porównywane</numerusform>
            <numerusform>%Ln z nich jest jeszcze porównywanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Wybrano: %Ln wiersz</numerusform>
            <numerusform>Wybrano: %Ln wiersze</numerusform>
            <numerusform>Wybrano: %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln z nich wyjęto</numerusform>
            <numerusform>%Ln z nich wyjęto</numerusform>
            <numerusform>%Ln z nich wyjęto</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Różnice otwartych wierszy</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>w %Ln projekcie</numerusform>
            <numerusform>w %Ln projektach</numerusform>
            <numerusform>w %Ln projektach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln otwarty wiersz bez następcy</numerusform>
            <numerusform>%Ln otwarte wiersze bez następcy</numerusform>
            <numerusform>%Ln otwartych wierszy bez następcy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabele są porównywane: odczytano %Ln projekt</numerusform>
            <numerusform>Tabele są porównywane: odczytano %Ln projekty</numerusform>
            <numerusform>Tabele są porównywane: odczytano %Ln projektów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln wiersz</numerusform>
            <numerusform>%Ln wiersze</numerusform>
            <numerusform>%Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekt</numerusform>
            <numerusform>%Ln projekty</numerusform>
            <numerusform>%Ln projektów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>Jeszcze %Ln wiersz ma te i inne różnice</numerusform>
            <numerusform>Jeszcze %Ln wiersze mają te i inne różnice</numerusform>
            <numerusform>Jeszcze %Ln wierszy ma te i inne różnice</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Różnica</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Pewność</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Wyjątki</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>liczba w pobliżu</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>inna liczba</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>inne brzmienie</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>doszła wartość</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>brak wartości</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nieporównywalne</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>brak różnicy</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>inna pisownia</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>niepewne: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>cały folder bez celu: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>cały projekt bez celu: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>projekt docelowy już nie istnieje: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 już nie istnieje</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>brak podobnego wiersza: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nazwa projektu</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>inna</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>inna wartość</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>w każdym wierszu jedna lub kilka z nich</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>niedostępne: nie jest otwarty żaden plik</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>niedostępne: trwa łączenie z bazą łączy</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>niedostępne: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>niedostępne: nie połączono z bazą łączy</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>niedostępne: menedżer łączy nie czeka na wybór</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>niedostępne: nie wybrano projektu</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>niedostępne: nie wybrano wiersza</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Numer ERP dla %1, wiersz %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Proszę o nadanie numeru ERP.

Projekt: %1
Wiersz: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Nie udało się rozpocząć wiadomości.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Na tym komputerze nie skonfigurowano programu pocztowego. Treść zapytania:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Nie widać żadnej tabeli do wydrukowania</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Drukuj: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 przekazano do drukarki</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 wydrukowano do %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>Nie udało się wydrukować %1.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Drukarka nie przyjmuje stron.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Nie można zapisać %1.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Strona</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Pytanie</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Wskazówka</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln wiersz jest potwierdzony, choć wartości jego zakresu nie mają nowego wiersza.</numerusform>
            <numerusform>%Ln wiersze są potwierdzone, choć wartości ich zakresów nie mają nowego wiersza.</numerusform>
            <numerusform>%Ln wierszy jest potwierdzonych, choć wartości ich zakresów nie mają nowego wiersza.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Potwierdź mimo to</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln wiersz</numerusform>
            <numerusform>%1: %Ln wiersze</numerusform>
            <numerusform>%1: %Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Wiersz nie ma przypisania zakresów wartości.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>brakujące: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>wielokrotne: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>spoza starego zakresu: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Zakres wartości wiersza</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: przypisane wartości: %2 z %Ln</numerusform>
            <numerusform>%1: przypisane wartości: %2 z %Ln</numerusform>
            <numerusform>%1: przypisane wartości: %2 z %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Powód decyzji</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Dla:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Powód:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>wycofano z oferty</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>połączono z inną częścią</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>podzielono na kilka części</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>przeniesiono do innego katalogu</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>jeszcze nie sprawdzono</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Odzyskiwanie</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Zapisane</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Odzyskane</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Stan na</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potwierdzony</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez celu</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Zapisana wersja jest nowsza niż wszystko, co można odzyskać.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>O&amp;dzyskaj</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>Z &amp;późniejszymi zmianami (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Otwórz zapisaną wersję</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln krok</numerusform>
            <numerusform>%Ln kroki</numerusform>
            <numerusform>%Ln kroków</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Dla %1 istnieje praca, która nie została zapisana: %2, ostatnio „%3”. Pochodzi od %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln wierszem</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 w %Ln projekcie</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importowanie tabel</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 nie ma już pliku CSV i pozostaje bez zmian</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>W folderze nie ma pliku CSV; nic nie zaimportowano</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Przerwano: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Nie wszystko zapisano: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>Nie można zapisać %1.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Eksport wierszy</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabele (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Eksportowanie wierszy</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Przerwano, nic nie wyeksportowano</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Zapisz raport</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Pliki PDF (*.pdf);;Strony HTML (*.html);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Tworzenie raportu</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Przerwano, nie zapisano raportu</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Składanie stron</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Raport zapisano w %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Przerwano, nie utworzono raportu</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabela</numerusform>
            <numerusform>%Ln tabele</numerusform>
            <numerusform>%Ln tabel</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>nowe %1, zmienione %2, niezmienione %3, niezaimportowane %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>Wyeksportowano %Ln wiersz do %1</numerusform>
            <numerusform>Wyeksportowano %Ln wiersze do %1</numerusform>
            <numerusform>Wyeksportowano %Ln wierszy do %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln wierszem</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
            <numerusform>%1 z %Ln wierszami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Uzgodnione zamiany</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>w całej wersji katalogu</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Uzgodnij</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Wycofaj</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Dowody</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>&amp;Przejmij</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Zamiana mówi, że stara wartość odpowiada nowej. Tworzy propozycje, ale niczego nie potwierdza.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>uzgodniona</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>uzgodniona w %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Odczyt tabel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln wiersz za</numerusform>
            <numerusform>%Ln wiersze za</numerusform>
            <numerusform>%Ln wierszy za</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln wiersz przeciw</numerusform>
            <numerusform>%Ln wiersze przeciw</numerusform>
            <numerusform>%Ln wierszy przeciw</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Żadna nie jest uzgodniona. Gdy lista różnic jest otwarta, jej zamiany są tu proponowane.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Raport z mapowania: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Wersja katalogu: z %1 na %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Utworzono %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Stan wierszy</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Według folderów, ze wszystkim poniżej</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Według projektów</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Dlaczego wiersze są otwarte</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Czym otwarte wiersze różnią się od swoich propozycji</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Próby losowe</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Kto o czym zdecydował</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Otwarte wiersze</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Czego nie udało się odczytać</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potwierdzony</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Potwierdzone jako wycofane</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Przypisane na pewno</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Bez celu</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>W konflikcie</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Oznaczenie</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Powód</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Różnice</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Prawdopodobieństwo</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Wyjątki</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Przykłady</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Ocenione</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Poprawne</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Błędnych najwyżej (na 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>odrzucona</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabela nieczytelna</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>nieporównywalne</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>brak różnicy</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>i jeszcze %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>dwie osoby zdecydowały różnie</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>decyduje ktoś inny</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>tabela jest nieczytelna</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>warunek lub formuła zawodzi</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>żaden cel nie jest właściwy</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>brakuje kolumny</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>kilka wierszy jest równych</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>zbyt niepodobne</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>równe, tylko niepotwierdzone</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>niepewne: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Otwarte wiersze bez następnika</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Wiersze potwierdzone jako wycofane</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Co mają wspólnego</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>razem</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Przejęte z wcześniejszych mapowań</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Wcześniejsze mapowanie</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Nadal jak przejęte</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Ocenione wiersze</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Załatwione wiersze: %1 z %2; otwarte: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>Czytaj projekty &amp;docelowe z repozytorium</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://serwer:port/ścieżka</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>W każdym wierszu jeden katalog. Bez wiersza nazwa katalogu jest zarazem nazwą jego serwera.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>najnowsza</translation>
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
        <translation>Ser&amp;wer:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Rewi&amp;zja:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>&amp;Miejsce na tym komputerze:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Czekanie na serwer:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Serwer, wiersz %1: &quot;%2&quot; nie ma postaci &quot;Katalog = svn://serwer:port/ścieżka&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Logowanie do repozytorium</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 wymaga zalogowania.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Nazwa i hasło obowiązują do końca programu i nie są zapisywane.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Nie można pokazać wiersza %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Nie ma już otwartych wierszy</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabele nie są jeszcze porównane</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Od początku: %Ln otwarty wiersz</numerusform>
            <numerusform>Od początku: %Ln otwarte wiersze</numerusform>
            <numerusform>Od początku: %Ln otwartych wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Otwarte wiersze następują według niepewności</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Otwarte wiersze następują według miejsca</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Wiersz nie należy do wybranego wzorca</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Wyjęto wiersz %1</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Nie wybrano wzorca albo wszystkie jego wiersze są rozstrzygnięte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln wiersz</numerusform>
            <numerusform>%Ln wiersze</numerusform>
            <numerusform>%Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>potwierdzić w %Ln projekcie?</numerusform>
            <numerusform>potwierdzić w %Ln projektach?</numerusform>
            <numerusform>potwierdzić w %Ln projektach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Ten krok można cofnąć.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Potwierdź</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Potwierdzono %Ln wiersz</numerusform>
            <numerusform>Potwierdzono %Ln wiersze</numerusform>
            <numerusform>Potwierdzono %Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Nie ma kandydata %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Potwierdzono wiersz %1 → %2</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Uzgodnione zamiany: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Wybierz wzorzec albo zaznacz otwarte wiersze</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Próba losowa</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Losuj</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Próba, wiersz %1 z %2: + poprawny, − błędny</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Nie trwa żadna próba</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Wszystkie wiersze próby są już rozstrzygnięte</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>poprawne: %1 z %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Próba odrzucona, %1; oceniał(a) %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>oceniono wszystkie wiersze</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>z pewnością 95 % mniej niż %1 % błędnych</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Próba: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>oceniał(a) %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>tam był błędny</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Wiersz %1 jest błędny: próba zakończona</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Obejrzyj błędny wiersz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln z nich jest niepewny.</numerusform>
            <numerusform>%Ln z nich są niepewne.</numerusform>
            <numerusform>%Ln z nich jest niepewnych.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Wszystkie wzorce są załatwione</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>w %Ln projekcie</numerusform>
            <numerusform>w %Ln projektach</numerusform>
            <numerusform>w %Ln projektach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>potwierdzono %Ln wiersz jako wycofany</numerusform>
            <numerusform>potwierdzono %Ln wiersze jako wycofane</numerusform>
            <numerusform>potwierdzono %Ln wierszy jako wycofane</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Wiersz %1 w %2 jest błędny. Zbiór podzielono; z którą częścią kontynuować?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Tyle z %Ln wiersza zostanie wylosowanych i ocenionych pojedynczo. %1 poprawnych mówi z pewnością 95 %, że mniej niż 5 % jest błędnych, %2 poprawnych – mniej niż 1 %.</numerusform>
            <numerusform>Tyle z %Ln wierszy zostanie wylosowanych i ocenionych pojedynczo. %1 poprawnych mówi z pewnością 95 %, że mniej niż 5 % jest błędnych, %2 poprawnych – mniej niż 1 %.</numerusform>
            <numerusform>Tyle z %Ln wierszy zostanie wylosowanych i ocenionych pojedynczo. %1 poprawnych mówi z pewnością 95 %, że mniej niż 5 % jest błędnych, %2 poprawnych – mniej niż 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Konsola skryptów</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Wyjście skryptów</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Wiersz skryptu</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Wiersz JavaScriptu. Enter go wykonuje, Tab uzupełnia, strzałki w górę i w dół przeglądają historię.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Zatrzymuje działający skrypt (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Usuwa wyjście</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Skrypt %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konsola)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Gotowe, status %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Jest za duży.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>To nie jest tekst w UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>Nie można odczytać %1. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Otwórz skrypt</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skrypty (*.js);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Zapisz skrypt</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>Nie można zapisać %1. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skrypt nie jest zapisany.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nowy skrypt</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skrypt</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Otwórz …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Wykonaj</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumenty:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Tekst skryptu</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumenty</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>na</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(proces %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Nie można odczytać dziennika %1 (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Za ostatnią zakończoną sesją dziennik %1 jest nieczytelny. Nie wiadomo, co tam było; dziennik zostaje zachowany.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Koniec dziennika %1 jest nieczytelny. Może brakować ostatniej zmiany.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Dziennik %1 jest uszkodzony. Za uszkodzeniem pasuje jeszcze %Ln zmiana, nie pasuje już: %2; może brakować dalszych. Dziennik zostaje zachowany.</numerusform>
            <numerusform>Dziennik %1 jest uszkodzony. Za uszkodzeniem pasują jeszcze %Ln zmiany, nie pasuje już: %2; może brakować dalszych. Dziennik zostaje zachowany.</numerusform>
            <numerusform>Dziennik %1 jest uszkodzony. Za uszkodzeniem pasuje jeszcze %Ln zmian, nie pasuje już: %2; może brakować dalszych. Dziennik zostaje zachowany.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Dziennik %1 jest uszkodzony lub nie pasuje do pliku mapowania. Brakuje co najmniej %Ln późniejszej zmiany; dziennik zostaje zachowany.</numerusform>
            <numerusform>Dziennik %1 jest uszkodzony lub nie pasuje do pliku mapowania. Brakuje co najmniej %Ln późniejszych zmian; dziennik zostaje zachowany.</numerusform>
            <numerusform>Dziennik %1 jest uszkodzony lub nie pasuje do pliku mapowania. Brakuje co najmniej %Ln późniejszych zmian; dziennik zostaje zachowany.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Po d&amp;ecyzji przejdź do następnego otwartego wiersza</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Jak pulpit</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Jasne</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Ciemne</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nigdy</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>K&amp;olory:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Rozmiar czcio&amp;nki:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Kop&amp;ia zapasowa co:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Wysoki kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Jeden folder w wierszu, z którego wolno czytać to, co pliki katalogu wskazują poza katalogami.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Dozwolone foldery:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Dozwolone foldery: „%1” nie jest folderem o pełnej ścieżce.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Mapowanie nie jest z nikim współdzielone. Najpierw wybierz wspólną kopię.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 już istnieje i jest innym mapowaniem. Wybierz inną kopię albo pobierz istniejącą do nowego pliku.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Inni opublikowali coś od ostatniej aktualizacji.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Wiersze w konflikcie nie są publikowane: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Są zmiany w folderach innych osób: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Folder jest już zajęty: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Właśnie publikuje ktoś inny (%1). Spróbuj za chwilę jeszcze raz.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Wspólna kopia jest nieosiągalna: %1. Własny plik jest niezmieniony; spróbuj później jeszcze raz.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Jeden z plików nie jest czytelnym mapowaniem: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Nie udało się zapisać: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>To się nie udało.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Odczyt wspólnej kopii</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Współdzielone przez %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Pobieranie zmian innych</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Nie ma nic nowego</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Publikowanie zmian</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapowanie edytowane</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Opublikowano, stan %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Najpierw zostanie to przejęte. Potem można publikować.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Aktualizuj</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publikuj mimo to</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Przejmij foldery</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>P&amp;rzejmij</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Wpisywanie folderów</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Nie masz już własnych folderów</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Własne foldery: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(tutaj)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>ma otwarte</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>nie ma otwartego</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>ostatnio %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>foldery %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Własny stan %1, najnowszy stan %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Inni coś opublikowali.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Nie ma nic nowego od innych.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Własne zmiany nie są jeszcze opublikowane.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Wspólna kopia: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Ostatnia publikacja została przerwana, ale dotarła.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Ostatnia publikacja została przerwana. Opublikuj jeszcze raz.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Wspólny plik był zmieniony w kopii roboczej i nie został wysłany. Zmianę zachowano w %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Kopia robocza została porzucona w trakcie operacji i została uporządkowana.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Dane zarządzania kopii roboczej były uszkodzone i zostały pobrane od nowa; poprzednie to %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Coś przerwanego zostało uporządkowane.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Foldery katalogu, oddzielone przecinkami; * oznacza dowolne znaki, ? jeden znak. Puste zwraca wszystkie:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>cofnij</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Wszystko rozstrzygnięte</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Wiersze, które jeszcze wymagają decyzji</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtr: brak wierszy</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Wiersze pokazywane przez filtr wszystkich wierszy</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln wiersz&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln wiersze&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln wierszy&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Otwarte: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtr: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 w %Ln projekcie</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Nie przypisano jeszcze żadnego wiersza</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Przerywa bieżącą pracę; to, co gotowe, pozostaje</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Błędy i ostrzeżenia: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Kroki</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Szukaj kto, co lub wiersze</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>Cofnij &amp;dotąd</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Cofa ten krok i wszystkie późniejsze obowiązujące</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Do w&amp;iersza</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Cofnij z zależnymi (%Ln)</numerusform>
            <numerusform>&amp;Cofnij z zależnymi (%Ln)</numerusform>
            <numerusform>&amp;Cofnij z zależnymi (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Cofnij tylko ten</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Wykonaj ponownie z wcześniejszymi (%Ln)</numerusform>
            <numerusform>&amp;Wykonaj ponownie z wcześniejszymi (%Ln)</numerusform>
            <numerusform>&amp;Wykonaj ponownie z wcześniejszymi (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Wykonaj ponownie</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Jeszcze brak kroków</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Żaden inny krok od niego nie zależy.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Krok można wykonać ponownie osobno.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Na tym się opierają: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Opiera się na: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Stoją na przeszkodzie, bo zdecydowały inaczej: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Jest tam teraz coś innego, o czym nie zdecydował żaden krok tej listy, na przykład z innego programu. Kroku nie można już przesunąć.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 w %Ln projekcie</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>obowiązuje</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>cofnięty</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>nieaktualny</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Stan na</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Wiersze</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Zmiana w %1 zadziała dopiero po ponownym przypisaniu wierszy. Zachowane zostanie wtedy tylko to, co potwierdzone.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln wiersz w %1 był potwierdzony jako wycofany i już nie jest: %2</numerusform>
            <numerusform>%Ln wiersze w %1 były potwierdzone jako wycofane i już nie są: %2</numerusform>
            <numerusform>%Ln wierszy w %1 było potwierdzonych jako wycofane i już nie jest: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>W %1 zmienne pozostają ignorowane: %2. Aby znów przypisać jedną z nich, wybierz &quot;Formuła...&quot; albo usuń wiersz i wpisz go od nowa.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Odpadł warunek projektu docelowego %1 w %2.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Odpadło mapowanie zmiennych projektu docelowego %1 w %2.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Wiersz %1 → %2 w %3: wiersz docelowy ma też %Ln inny wiersz: %4</numerusform>
            <numerusform>Wiersz %1 → %2 w %3: wiersz docelowy mają też %Ln inne wiersze: %4</numerusform>
            <numerusform>Wiersz %1 → %2 w %3: wiersz docelowy ma też %Ln innych wierszy: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln wiersz w %1 dzieli swój wiersz docelowy z nowo przypisanymi: %2</numerusform>
            <numerusform>%Ln wiersze w %1 dzielą swój wiersz docelowy z nowo przypisanymi: %2</numerusform>
            <numerusform>%Ln wierszy w %1 dzieli swój wiersz docelowy z nowo przypisanymi: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>przyjęto %Ln konflikt</numerusform>
            <numerusform>przyjęto %Ln konflikty</numerusform>
            <numerusform>przyjęto %Ln konfliktów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>Potwierdzono %Ln wiersz</numerusform>
            <numerusform>Potwierdzono %Ln wiersze</numerusform>
            <numerusform>Potwierdzono %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>potwierdzono %Ln wiersz jako wycofany</numerusform>
            <numerusform>potwierdzono %Ln wiersze jako wycofane</numerusform>
            <numerusform>potwierdzono %Ln wierszy jako wycofane</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>przypisano %Ln wiersz</numerusform>
            <numerusform>przypisano %Ln wiersze</numerusform>
            <numerusform>przypisano %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>usunięto przypisanie %Ln wiersza</numerusform>
            <numerusform>usunięto przypisanie %Ln wierszy</numerusform>
            <numerusform>usunięto przypisanie %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>zmieniono przypisanie zakresów wartości %Ln wiersza</numerusform>
            <numerusform>zmieniono przypisanie zakresów wartości %Ln wierszy</numerusform>
            <numerusform>zmieniono przypisanie zakresów wartości %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>rozwiązano konflikt %Ln wiersza</numerusform>
            <numerusform>rozwiązano konflikt %Ln wierszy</numerusform>
            <numerusform>rozwiązano konflikt %Ln wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>zmieniono %Ln wiersz</numerusform>
            <numerusform>zmieniono %Ln wiersze</numerusform>
            <numerusform>zmieniono %Ln wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>potwierdzono wiersz %1 → %2</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>przypisano wiersz %1 → %2</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (przedtem %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>potwierdzono wiersz %1 jako wycofany (przedtem %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>potwierdzono wiersz %1 jako wycofany</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>usunięto przypisanie wiersza %1 (przedtem %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Dodano projekt</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Usunięto projekt</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Dodano projekt docelowy</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Usunięto projekt docelowy</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Zmieniono kolejność projektów docelowych</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Zmieniono warunki</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Zmieniono mapowanie zmiennych</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Zmieniono wersje</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Zmieniono stan</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 w %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 w %Ln projekcie</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
            <numerusform>%1 w %Ln projektach</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Pomiń</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Gotowe</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, wiersz %2: pozycja %3 przypisania zakresów wartości nie ma postaci {NAME=WARTOŚĆ} -&gt; numer wiersza: &quot;%4&quot;. Popraw ją albo rozwiń od nowa.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, wiersz %2: przypisanie zakresów wartości wymienia wiersz %3, ale wiersz nie ma projektu docelowego. Przypisz go albo wyczyść tekst.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, wiersz %2: przypisanie zakresów wartości wymienia wiersz %3, którego nie ma w %4. Popraw je albo rozwiń od nowa.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: nie można odczytać tabeli projektu docelowego %2, jego przypisania zakresów wartości są niesprawdzone. Sprawdź folder projektów docelowych (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Sprawdzanie przypisań zakresów wartości</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>Sprawdzono %Ln przypisanie zakresów wartości</numerusform>
            <numerusform>Sprawdzono %Ln przypisania zakresów wartości</numerusform>
            <numerusform>Sprawdzono %Ln przypisań zakresów wartości</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>bez zastrzeżeń</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln zastrzeżenie</numerusform>
            <numerusform>%Ln zastrzeżenia</numerusform>
            <numerusform>%Ln zastrzeżeń</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (przerwano): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Porównywanie wersji katalogów</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Ukazał się nowy katalog i każdy wiersz starej wersji trzeba przenieść na wiersz nowej. Program proponuje, Ty sprawdzasz i potwierdzasz.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Ostatnio otwarte:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Nowe mapowanie...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Tworzy nowy plik mapowania z dwóch wersji katalogu</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>O&amp;twórz...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Otwiera plik mapowania</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Otwórz &amp;katalog przykładowy</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Otwiera własny plik mapowania dla dołączonego katalogu przykładowego</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>Zapi&amp;sz</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Zapisuje wszystkie zmiany w pliku mapowania</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Zapisz &amp;jako...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Zapisuje w innym pliku mapowania</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Zamyka plik mapowania</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Foldery katalogów...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Wybiera foldery starej i nowej wersji katalogu</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Wspólna kopia...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Wybiera kopię, przez którą kilka osób pracuje nad tym mapowaniem</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Odśwież</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Przejmuje to, co opublikowali inni</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publikuj</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Przekazuje własne zmiany innym</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Przejmij &amp;foldery...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Informuje innych, które foldery edytujesz samodzielnie</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Kto nad czym pracuje</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Pokazuje, kto ma otwarte mapowanie i do kogo należą które foldery</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importuj tabele...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Tworzy z folderu z plikami CSV projekty katalogu</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>&amp;Eksportuj wiersze...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Zapisuje wszystkie wiersze wersji z ich przypisaniami w pliku CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>&amp;Raport...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Zapisuje jako PDF lub HTML, jak daleko jest wersja i dlaczego wiersze są otwarte</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Kończy program</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Cofa ostatni krok</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Po&amp;nów</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Wykonuje ponownie cofnięty krok</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>Po&amp;twierdź wiersze...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Potwierdza w jednym kroku przypisanie zaznaczonych lub wszystkich pokazanych wierszy</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Potwierdź wiersze &amp;bez celu jako wycofane...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Potwierdza jako wycofane te z zaznaczonych lub wszystkich pokazanych wierszy, które nie mają celu</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Usuń p&amp;rzypisania...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Usuwa w jednym kroku przypisanie zaznaczonych lub wszystkich pokazanych wierszy</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Usuń przypisania &amp;i potwierdź...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Zaznaczone lub wszystkie pokazane wiersze są wycofane: usuwa przypisania i potwierdza w jednym kroku</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Przypisz &amp;wszystkie projekty...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Szuka przypisań dla wszystkich wierszy katalogu; potwierdzone pozostaje</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Sprawdź przypisania &amp;zakresów wartości</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Porównuje wszystkie teksty zakresów wartości z tabelami projektów docelowych</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>S&amp;krypt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Otwiera okno, w którym pisze się i wykonuje skrypty</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Ustawienia...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Język, czcionka, klawisze, kopia zapasowa</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Następny otwarty wiersz</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Przechodzi do następnego wiersza, który wymaga decyzji, także w następnym projekcie</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Poprzedni &amp;otwarty wiersz</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Przechodzi do poprzedniego wiersza, który wymaga decyzji, także w poprzednim projekcie</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Przejdź do wiersza...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Szuka wiersza projektu po numerze lub oznaczeniu</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Druga tabela</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Przełącza między starą a nową tabelą</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Znajdź...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Znajduje projekty, wiersze, polecenia i ustawienia po częściach słów</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Wzorce różnic</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Pokazuje, czym otwarte wiersze różnią się od swoich propozycji</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Stare i nowe</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Pokazuje obok siebie stare i nowe wartości wiersza oraz jego kandydatów</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Potwierdź wzorzec...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Potwierdza w jednym kroku wszystkie wiersze wybranego wzorca</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>Wyj&amp;mij wiersz</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Wiersz nie zostanie potwierdzony z innymi wierszami wzorca</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Następny wiersz wzorca</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Przechodzi do następnego otwartego wiersza wybranego wzorca</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Pop&amp;rzedni wiersz wzorca</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Przechodzi do poprzedniego otwartego wiersza wybranego wzorca</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Nas&amp;tępny wzorzec</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Wybiera następny wzorzec z listy</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>N&amp;ajpierw najmniej pewne</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Otwarte wiersze następują według ryzyka pomyłki zamiast według miejsca</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Sąs&amp;iedztwo</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Pokazuje, gdzie przypisania sąsiednich wierszy do siebie nie pasują</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>&amp;Ustaw wiersze na miejsce</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Naprawia w jednym kroku wybrane znalezisko z sąsiedztwa</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>&amp;Zamiany...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Uzgadnia zamiany wartości dla wersji katalogu lub je wycofuje</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Próba &amp;losowa...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Losuje wiersze wybranego wzorca lub zaznaczone wiersze, które są oceniane pojedynczo</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Pró&amp;ba: poprawny</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Pokazany wiersz próby jest przypisany poprawnie</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Próba: błę&amp;dny</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Pokazany wiersz próby jest przypisany błędnie; próba się kończy</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandydat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Przypisuje wierszowi tego kandydata i potwierdza go</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Kandydat &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Kandydat &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Kandydat &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Kandydat &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Zakres wartości wiersza</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Pokazuje, które wartości starego zakresu mają nowe wiersze</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>&amp;Konflikty</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Pokazuje wiersze, które dwie strony rozstrzygnęły różnie</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Następny nierozstrzygnięty konflikt</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Przechodzi do następnego wiersza, którego konflikt jest jeszcze nierozstrzygnięty</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Konflikt: własna decyzja</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>W tym konflikcie obowiązuje własna decyzja</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Konflikt: inna decyzja</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>W tym konflikcie obowiązuje decyzja drugiej strony</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Konflikt: rozstrzygnij od nowa</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Żadna z decyzji nie obowiązuje; wiersz jest znów bez celu</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Buduje widok od nowa: drzewo, statystykę, tabele z dysku</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>Po&amp;dręcznik</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Otwiera podręcznik w miejscu, o które chodzi</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Klawisze...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Pokazuje i zmienia klawisze wszystkich poleceń</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Wskazówka do tego miejsca</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Pokazuje wskazówkę tam, dokąd trafiają klawisze: w tabeli, dlaczego wiersz ma swój stan</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Przewodnik</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Pokazuje w kilku krokach, gdzie co jest</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>O &amp;tym programie</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Wersja i foldery</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Kroki...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Pokazuje wszystkie kroki, także z dawnych sesji, i cofa pojedyncze</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Następny projekt z otwartymi wierszami</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Przechodzi do następnego projektu wymagającego decyzji</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Poprzedni projekt z otwartymi wierszami</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Przechodzi do poprzedniego projektu wymagającego decyzji</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtr wszystkich wierszy</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Wybiera wiersze wszystkich projektów według stanu, powodu, różnicy i osoby; F8 przechodzi po nich</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Drukuj...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Pokazuje strony widocznej tabeli i drukuje je</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Pokazuje strony raportu i drukuje je</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Drukuj raport...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Przejmij decyzje...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Przejmuje z wcześniejszego mapowania w jednym kroku to, co już potwierdzono dla tej samej starej wersji</translation>
    </message>
</context>
</TS>
