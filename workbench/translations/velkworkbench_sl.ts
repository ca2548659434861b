<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl_SI" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Ničesar ni treba spremeniti.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Potrdim %Ln vrstico?</numerusform>
            <numerusform>Potrdim %Ln vrstici?</numerusform>
            <numerusform>Potrdim %Ln vrstice?</numerusform>
            <numerusform>Potrdim %Ln vrstic?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Potrdim %Ln vrstico kot opuščeno?</numerusform>
            <numerusform>Potrdim %Ln vrstici kot opuščeni?</numerusform>
            <numerusform>Potrdim %Ln vrstice kot opuščene?</numerusform>
            <numerusform>Potrdim %Ln vrstic kot opuščenih?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Razveljavim dodelitev %Ln vrstice?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Razveljavim dodelitev %Ln vrstice in jo potrdim kot opuščeno?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic in ju potrdim kot opuščeni?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic in jih potrdim kot opuščene?</numerusform>
            <numerusform>Razveljavim dodelitev %Ln vrstic in jih potrdim kot opuščene?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln od njih je že potrjena.</numerusform>
            <numerusform>%Ln od njih sta že potrjeni.</numerusform>
            <numerusform>%Ln od njih so že potrjene.</numerusform>
            <numerusform>%Ln od njih je že potrjenih.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln od njih izgubi svojo dodelitev območij vrednosti.</numerusform>
            <numerusform>%Ln od njih izgubita svoji dodelitvi območij vrednosti.</numerusform>
            <numerusform>%Ln od njih izgubijo svoje dodelitve območij vrednosti.</numerusform>
            <numerusform>%Ln od njih izgubi svoje dodelitve območij vrednosti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln vrstica brez cilja ostane nepotrjena.</numerusform>
            <numerusform>%Ln vrstici brez cilja ostaneta nepotrjeni.</numerusform>
            <numerusform>%Ln vrstice brez cilja ostanejo nepotrjene.</numerusform>
            <numerusform>%Ln vrstic brez cilja ostane nepotrjenih.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln vrstica ostane, kot je.</numerusform>
            <numerusform>%Ln vrstici ostaneta, kot sta.</numerusform>
            <numerusform>%Ln vrstice ostanejo, kot so.</numerusform>
            <numerusform>%Ln vrstic ostane, kot so.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln vrstica v sporu se ne spremeni.</numerusform>
            <numerusform>%Ln vrstici v sporu se ne spremenita.</numerusform>
            <numerusform>%Ln vrstice v sporu se ne spremenijo.</numerusform>
            <numerusform>%Ln vrstic v sporu se ne spremeni.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln vrstica ni vpisana v noben ciljni projekt.</numerusform>
            <numerusform>%Ln vrstici nista vpisani v noben ciljni projekt.</numerusform>
            <numerusform>%Ln vrstice niso vpisane v noben ciljni projekt.</numerusform>
            <numerusform>%Ln vrstic ni vpisanih v noben ciljni projekt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln vrstica potrjena.</numerusform>
            <numerusform>%Ln vrstici potrjeni.</numerusform>
            <numerusform>%Ln vrstice potrjene.</numerusform>
            <numerusform>%Ln vrstic potrjenih.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln vrstica potrjena kot opuščena.</numerusform>
            <numerusform>%Ln vrstici potrjeni kot opuščeni.</numerusform>
            <numerusform>%Ln vrstice potrjene kot opuščene.</numerusform>
            <numerusform>%Ln vrstic potrjenih kot opuščenih.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Dodelitev %Ln vrstice razveljavljena.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Dodelitev %Ln vrstice razveljavljena, vrstica potrjena kot opuščena.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena, vrstici potrjeni kot opuščeni.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena, vrstice potrjene kot opuščene.</numerusform>
            <numerusform>Dodelitev %Ln vrstic razveljavljena, vrstice potrjene kot opuščene.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>brez naslednika</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tipka</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Zanesljivost</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nova vrstica</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Razlog</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 tu že odločenih ali zanesljivih</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 brez vrstice v novi izdaji</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 takrat potrjenih kot opuščene</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 v projektih, ki tu manjkajo</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 tam v sporu</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Ni prevzeto: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Iz %1 ni ničesar za prevzeti.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Datoteka ne vsebuje preslikave iz izdaje kataloga %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Tudi ta datoteka vodi v izdajo kataloga %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Izberite preslikavo, ki vodi iz iste stare izdaje kataloga v zgodnejšo novo.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Prevzeto iz %1: tam potrjeno za izdajo kataloga %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Branje prejšnje preslikave</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Iz %1 ni mogoče ničesar prevzeti.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Imenik izdaje kataloga %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Iskanje ciljnih projektov</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Prevzemanje odločitev</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Prekinjeno, nič ni bilo prevzeto</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Odločitve, prevzete iz %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Prevzeto iz %1: %2 od %Ln potrjene vrstice, %3 zanesljivo dodeljenih, %4 predlaganih.</numerusform>
            <numerusform>Prevzeto iz %1: %2 od %Ln potrjenih vrstic, %3 zanesljivo dodeljenih, %4 predlaganih.</numerusform>
            <numerusform>Prevzeto iz %1: %2 od %Ln potrjenih vrstic, %3 zanesljivo dodeljenih, %4 predlaganih.</numerusform>
            <numerusform>Prevzeto iz %1: %2 od %Ln potrjenih vrstic, %3 zanesljivo dodeljenih, %4 predlaganih.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Imenik stare izdaje kataloga</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Imenik nove izdaje kataloga</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Imeniki katalogov</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Kje sta obe izdaji kataloga te datoteke preslikav? Imenika se zapomnita skupaj z datoteko.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Stara izdaja (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Nova izdaja (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Potrebna sta oba imenika.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 ni imenik.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>V stari izdaji manjka %1. Išče se imenik, v katerem je katalog %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>V novi izdaji manjka katalog %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>Vrstice %1 v %2 ni mogoče pokazati</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Nobena vrstica ni v sporu</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Vsi spori so odločeni; zdaj shranite</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Spor %1 od %2, odprtih še %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln vrstica iz %1 si nasprotuje na enak način. Velja odločitev za vse?</numerusform>
            <numerusform>%Ln vrstici iz %1 si nasprotujeta na enak način. Velja odločitev za vse?</numerusform>
            <numerusform>%Ln vrstice iz %1 si nasprotujejo na enak način. Velja odločitev za vse?</numerusform>
            <numerusform>%Ln vrstic iz %1 si nasprotuje na enak način. Velja odločitev za vse?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Lastna: %1
Druga: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>Za &amp;vse</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>Vrstico &amp;za vrstico</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>Vrstica ni v sporu</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Lastna odločitev ni znana: vrstica je bila v sporu že ob odprtju</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Nobena vrstica ni v sporu.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Vsi spori so odločeni.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>Še %Ln vrstica si nasprotuje kot ta.</numerusform>
            <numerusform>Še %Ln vrstici si nasprotujeta kot ta.</numerusform>
            <numerusform>Še %Ln vrstice si nasprotujejo kot ta.</numerusform>
            <numerusform>Še %Ln vrstic si nasprotuje kot ta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Spori</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Strani spora</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Lastna</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Druga</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Odloči na novo</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>Odprti spori: %1 od %Ln.</numerusform>
            <numerusform>Odprti spori: %1 od %Ln.</numerusform>
            <numerusform>Odprti spori: %1 od %Ln.</numerusform>
            <numerusform>Odprti spori: %1 od %Ln.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>odprt</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>lastna</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>druga</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nova</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Lastna odločitev</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Druga odločitev</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Velja</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>samodejno dodeljena</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>za pregled</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>potrjena</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>brez cilja, odprta</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potrjena kot opuščena</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>ni znano</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, vrstica %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Ciljni projekt</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Ciljna vrstica</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Območja vrednosti</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Stara vrstica</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Prej</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Lastna odločitev</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Druga odločitev</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Podatek</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>enako</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>nadomeščeno kot v še %Ln vrstici</numerusform>
            <numerusform>nadomeščeno kot v še %Ln vrsticah</numerusform>
            <numerusform>nadomeščeno kot v še %Ln vrsticah</numerusform>
            <numerusform>nadomeščeno kot v še %Ln vrsticah</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>podobno</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>različno</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>samo v novi vrstici</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>samo v stari vrstici</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Spremenljivka</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Staro</translation>
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
        <translation>Tabela nima te vrstice.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Brez cilja. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>Dodeljena vrstica ni nobeden od kandidatov.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Staro in novo</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Kandidati</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Potrjena.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Zanesljivo dodeljena.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln vrstica</numerusform>
            <numerusform>%Ln vrstici</numerusform>
            <numerusform>%Ln vrstice</numerusform>
            <numerusform>%Ln vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>primerjanih: prvih %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Ni skupnih razlik.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>Skupno: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Izbrane vrstice</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Izdaja kataloga</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Datoteka vsebuje več izdaj kataloga. Katero naj odprem?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Odpri</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Branje datoteke preslikav</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Datoteke ni mogoče odpreti.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Datoteka je odprta samo za branje.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Zaklep je mogoče odstraniti, če tam zagotovo nihče več ne dela, na primer po izpadu računalnika.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>Samo &amp;branje</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>O&amp;dstrani zaklep</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Zaklepa ni bilo mogoče odstraniti.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Katalogi niso znani; navedejo se z --source in --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Shranim spremembe v %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Zavržene spremembe so izgubljene.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Shrani</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>Zav&amp;rzi</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln vrstica</numerusform>
            <numerusform>%1: %Ln vrstici</numerusform>
            <numerusform>%1: %Ln vrstice</numerusform>
            <numerusform>%1: %Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Še %Ln vrstica v sporu, v teh projektih:</numerusform>
            <numerusform>Še %Ln vrstici v sporu, v teh projektih:</numerusform>
            <numerusform>Še %Ln vrstice v sporu, v teh projektih:</numerusform>
            <numerusform>Še %Ln vrstic v sporu, v teh projektih:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Pokaži spore</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>&amp;Vseeno shrani</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Shranjeno: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Datoteka ni bila shranjena.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Združi spre&amp;membe</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Obdrži kopijo in zapiši na novo</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Zapiši lastno različico</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Spremembe drugih so prevzete. Preglejte jih in nato še enkrat shranite.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Sprememb drugih ni bilo mogoče prevzeti.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Datoteke preslikav ni mogoče ustvariti.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Branje %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Datoteke preslikav %1 ni mogoče prebrati (%2).
Izberite drugo datoteko ali obnovite varnostno kopijo %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Datoteke preslikav %1 ni mogoče prebrati (%2).
Izberite drugo datoteko.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 ne vsebuje nobene izdaje.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 ne vsebuje izdaje %2. Na voljo so: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 je odprta samo za branje.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 pravkar ureja %2, zato je odprta samo za branje.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>V mapo datoteke %1 ni mogoče pisati (%2). Datoteka je zato odprta samo za branje; shranjeno pod drugim imenom jo je mogoče urejati.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Za %1 obstaja delo, ki ni bilo shranjeno. Ponujeno bo, takoj ko bo datoteko mogoče odpreti za urejanje (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 ima še drugo ime (trda povezava). Ob shranjevanju datoteka z drugim imenom ostane, kot je bila.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Shranjevanje %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Varnostno kopiranje %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 pravkar ureja %2. Nič ni bilo zapisano. Izberite drugo ime.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>V mapi datoteke %1 ni mogoče ničesar ustvariti (%2). Nič ni bilo zapisano. Izberite drugo mapo.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Nobena vrstica tega projekta ni v filtru.
Odprite »%1« in izberite »%2«, da bodo spet vidne vse vrstice.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Noben projekt nima vrstice v filtru.
Odprite »%1« in izberite »%2«, da bodo spet vidni vsi projekti.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Datoteke preslikav (*.json);;Vse datoteke (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Odpri datoteko preslikav</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Shrani datoteko preslikav</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Shrani tabelo</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabele (*.csv);;Vse datoteke (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Izberi skupno kopijo</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Prevzemi odločitve iz</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Filter je odstranjen: projekt v njem nima vrstic</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Dosežen konec, nadaljevanje od začetka</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Dosežen začetek, nadaljevanje od konca</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>V filtru ni več vrstic</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>zamenjano besedilo</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>preračunano število</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Zakaj odprta</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Vrsta razlike</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Razlika v stolpcu</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Nazadnje odločil</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nihče</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(nič od tega)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>ne izbrane</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Branje tabel...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln vrstica</numerusform>
            <numerusform>%Ln vrstici</numerusform>
            <numerusform>%Ln vrstice</numerusform>
            <numerusform>%Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Brez filtra: vse vrstice</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Neberljive tabele: %Ln</numerusform>
            <numerusform>Neberljive tabele: %Ln</numerusform>
            <numerusform>Neberljive tabele: %Ln</numerusform>
            <numerusform>Neberljive tabele: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter prek vseh vrstic</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Vrednost</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>Od&amp;strani filter</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Izvor</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>prevzeto iz prejšnje preslikave</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 ni navadna datoteka in je zato ni mogoče uporabiti kot zaklep. Nič ni bilo zapisano. Odstranite, kar je tam.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 pravkar shranjuje drug program. Nič ni bilo zapisano. Čez trenutek shranite še enkrat.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>V mapi datoteke %1 ni mogoče ničesar ustvariti (%2). Nič ni bilo zapisano. Sprostite prostor ali shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 ni mogoče prebrati (%2). Nič ni bilo zapisano. Shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 ni berljiva datoteka preslikav (%2). Nič ni bilo zapisano. Ob shranjevanju se obstoječa datoteka ohrani pod imenom s časovnim žigom in ustvari se nova, ki vsebuje samo to izdajo.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 ni berljiva datoteka preslikav (%2). Nič ni bilo zapisano. Ob shranjevanju se obstoječa datoteka ohrani pod imenom s časovnim žigom in ustvari se nova. Druge izdaje so iz varnostne kopije %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 je neberljiva in je ni bilo mogoče ohraniti kot %2 (%3). Nič ni bilo zapisano. Shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 je bila od odprtja izbrisana ali preimenovana. Ob shranjevanju se datoteka ustvari na novo in vsebuje samo to izdajo (%2). Nič še ni zapisano.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 je od odprtja spremenil nekdo drug, te izdaje (%2) pa ne. Ob shranjevanju druge izdaje ostanejo, kot so zdaj v datoteki. Nič še ni zapisano.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 je od odprtja spremenil nekdo drug, tudi to izdajo (%2). Ob shranjevanju se njegove spremembe te izdaje izgubijo. Nič še ni zapisano: vseeno shranite, shranite pod drugim imenom ali datoteko odprite na novo.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>V %1 ni mogoče pisati (%2). Nič ni bilo zapisano. Preverite pravice za pisanje ali shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 ni bila shranjena: %2. Datoteka je nespremenjena, spremembe so še vedno odprte. Sprostite prostor in shranite še enkrat ali shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>datoteke ni bilo mogoče zapisati v celoti</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>zapisana datoteka ni berljiva (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>zapisana datoteka ne vsebuje tega, kar naj bi bilo shranjeno</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>v zapisani datoteki manjka izdaja %1 ali pa je druga</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Varnostne kopije %1 ni bilo mogoče ustvariti (%2). Nič ni bilo zapisano. Sprostite prostor ali shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 je med shranjevanjem spremenil nekdo drug. Nič ni bilo zapisano. Shranite še enkrat.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 ni bila shranjena: %2. Datoteka je nespremenjena, spremembe so še vedno odprte. Shranite pod drugim imenom.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Nazaj</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Priročnik</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Vsebina</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Išči na strani</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Zgodovina odločitev...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Kdo je kaj odločil, kdaj in zakaj</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Razlog odločitve...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>K zadnji odločitvi ali k izbranim vrsticam, na primer zakaj ni naslednika</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Vrstica %1 v %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln vrstica v %1</numerusform>
            <numerusform>%Ln vrstici v %1</numerusform>
            <numerusform>%Ln vrstice v %1</numerusform>
            <numerusform>%Ln vrstic v %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Razlog zabeležen: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Zgodovina odločitev</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Izbrana vrstica</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Izbrani projekt</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Vsi projekti</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Išči: kdo, projekt, cilj ali razlog</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Preberi znova</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Shrani kot CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Neberljive vrstice dnevnika: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Odločitve: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Datoteke ni mogoče zapisati.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>brez naslednika</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (ni shranjeno)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Doslej</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Kaj</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Razlog</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Prevzeto iz %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Mapa z datotekami CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Imenik kataloga</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Uvoz tabel</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Mapa z datotekami CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Imenik kataloga:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Iz vsake datoteke CSV nastane projekt s svojo tabelo na istem mestu v katalogu. Ob ponovnem uvozu tabel se številke vrstic ohranijo.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Uvozi</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Manjka mapa z datotekami CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Manjka imenik kataloga; ustvari se, če obstaja imenik nad njim.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>En imenik je v drugem.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Potrdi vrstico ali dodeli izbrano vrstico</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Razveljavi dodelitev vrstice</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Razveljavi dodelitev in potrdi kot opuščeno</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Uredi dodelitev območij vrednosti</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Kopiraj pogoj iz vrstice</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Potrdi celoten projekt</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Išči v tabeli</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Išči naprej</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Išči nazaj</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filter stolpca</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Kopiraj vrstice</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Večja tabela</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Manjša tabela</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabela v običajni velikosti</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Privzeto</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Brez tipke</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Tipke</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Ukaz ali tipka</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Ukazi</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Ukaz</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Kje</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tipka</translation>
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
        <translation>Tipka za %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Tipko %1 potrebujejo polja in seznami sami.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>Tipko %1 bi imela %2 in %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Lastna izbira</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 potem nima več tipke %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>Tipko %1 ima zdaj %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nič ni najdeno</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Potrjena: dodelitev je odločena</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Predlog: treba ga je potrditi ali popraviti</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Brez slike: nedvoumno enaka, dodelil jo je program</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Dodelitev ni bila najdena</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Opuščena: potrjeno, da dodelitve ni</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Spor s spremembo nekoga drugega</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Projekta ali tabele ni mogoče prebrati</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Dodelitve območij vrednosti vrstice</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>V ciljni tabeli: dodeljena vrstica</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zapri</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Pogoj kopiran v odložišče</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>Kopiranega pogoja tako še ni mogoče uporabiti: vrednost manjka, je območje ali vsebuje narekovaj: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Tu v filtru je vse opravljeno, zunaj je odprta še %Ln vrstica.</numerusform>
            <numerusform>Tu v filtru je vse opravljeno, zunaj sta odprti še %Ln vrstici.</numerusform>
            <numerusform>Tu v filtru je vse opravljeno, zunaj so odprte še %Ln vrstice.</numerusform>
            <numerusform>Tu v filtru je vse opravljeno, zunaj je odprtih še %Ln vrstic.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Dosežen konec, nadaljevanje od začetka</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Dosežen začetek, nadaljevanje od konca</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Spor %1 od %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Nobena vrstica ni v katerem od izbranih stanj</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Nobena vrstica ne potrebuje več odločitve</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Nobene od odprtih vrstic ni mogoče pokazati; tabele manjkajo</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Pojdi na vrstico</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Številka ali standardna oznaka:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Pojdi</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Noben projekt ni izbran</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>V tem projektu ni vrstice z »%1«</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Zadetek %1 od %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Izvedi</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Ta korak je mogoče razveljaviti.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Gre za označene vrstice.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Gre za vse vrstice projekta.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filter: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Noben drug projekt nima takih vrstic</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Gre samo za prikazane vrstice projekta: %1 od %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Spor</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Pokaži samo vrstice v sporu s spremembo nekoga drugega in njihove projekte</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Za pregled</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Pokaži samo vrstice s predlogom, ki ga je treba potrditi ali popraviti, in njihove projekte</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Brez cilja</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Pokaži samo vrstice, za katere ni bilo nič najdeno, in njihove projekte</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Samodejno</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Pokaži samo vrstice, ki so nedvoumno enake in jih je dodelil program, in njihove projekte</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potrjena</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Pokaži samo vrstice s potrjeno dodelitvijo in njihove projekte</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Opuščena</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Pokaži samo vrstice, potrjene kot opuščene, in njihove projekte</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Uporabi zbirko povezav</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Datoteka na tem računalniku</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Strežnik PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>običajna</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Geslo je v datoteki gesel, v shrambi ključev namizja ali v PGPASSWORD ali pa se vnese ob prijavi. Ne shrani se.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>če je mogoče</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>vedno</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>vedno, strežnik preverjen</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nikoli</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Vrsta:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Datoteka:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Gostitelj:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Vrata:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Podatkovna zbirka:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>Upo&amp;rabnik:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>Ši&amp;friranje:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Zbirka povezav: manjka ime datoteke.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Zbirka povezav: ime podatkovne zbirke manjka ali ni veljavno.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Preveri številke zbirke povezav</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>V zbirki povezav ni skupine, ki ji pripadate.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Izberi skupino</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Skupina zbirke povezav:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>Vrstice %1 iz %2 ni v tej preslikavi.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Preverjanje številk zbirke povezav</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Številk ni bilo mogoče preveriti.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Spremembe v zbirki povezav so morda izgubljene.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Manjka licenca za zbirko povezav.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Prijava v zbirko povezav</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Geslo velja do konca programa in se ne shrani. Če ostane prazno, se vzame iz datoteke gesel.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Pod tem imenom je v zapisniku navedeno, kdo je kaj izbrisal.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Upravitelj povezav</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Išči številko, projekt ali opis</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Številka</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Pokaži vrstico</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>Poveži z &amp;drugo vrstico...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Nato izberite projekt in vrstico ter pošljite izbor z ukazom »Izbor v upravitelja povezav«.</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Nazadnje izbrisano...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Povezave: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Izbrisano ni nič, kar bi bilo mogoče obnoviti.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Obnovim nazadnje izbrisano? Vrstice: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 jih je izbrisal(a) %2 iz %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Obnovi</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Prva %Ln povezava; iskanje pokaže druge.</numerusform>
            <numerusform>Prvi %Ln povezavi; iskanje pokaže druge.</numerusform>
            <numerusform>Prve %Ln povezave; iskanje pokaže druge.</numerusform>
            <numerusform>Prvih %Ln povezav; iskanje pokaže druge.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Preverjanje številk</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Številka</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Ugotovitev</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Številke pri projektih te preslikave: %1, pri drugih projektih: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Ni primerjano, ker je neberljivo: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Vrstica opuščena ali je ni</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>potrjena kot opuščena</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>projekt je nima</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Zahteva jo več vrstic</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>Del se razlikuje</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>Del se razlikuje (ni primerjano)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Odprte vrstice s številkami</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Številke: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>Vrstice %1 v %2 ni.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Projekta %1 ni mogoče pokazati.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Najdi</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projekt, vrstica, ukaz ali nastavitev</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Najdeno</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Zadoščajo deli besed; število na koncu pomeni vrstico.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Nič ni najdeno</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln zadetek</numerusform>
            <numerusform>%Ln zadetka</numerusform>
            <numerusform>%Ln zadetki</numerusform>
            <numerusform>%Ln zadetkov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Prvi zadetki: %1 od %Ln</numerusform>
            <numerusform>Prvi zadetki: %1 od %Ln</numerusform>
            <numerusform>Prvi zadetki: %1 od %Ln</numerusform>
            <numerusform>Prvi zadetki: %1 od %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Vrstica %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Ukaz</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Nastavitev</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Napaka: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Opozorilo: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Sporočila</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Počisti sporočila</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Kopiraj vsa sporočila</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Uporabnik:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Geslo:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Ni povezave z zbirko povezav: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Številk ERP ni mogoče prebrati. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Vrstice znova dodeljene: brez sprememb</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Tu ni take vrstice. %1 gre na naslednjo.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>samo za branje</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>Levo je stara izdaja kataloga. Slike kažejo, kje je treba še kaj odločiti. Izberite projekt, da vidite njegove vrstice.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Cilji</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Tu so projekti nove izdaje, ki lahko prevzamejo vrstice, s pogoji in preslikavami spremenljivk.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>Levo stara tabela, desno nova. %1 potrdi dodelitev ali dodeli vrstico, izbrano na desni, %2 jo razveljavi, %3 potrdi, da je vrstica opuščena.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Kaj je še odprto</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Števec pove, koliko vrstic potrebuje odločitev. %1 gre na naslednjo, tudi v naslednjem projektu.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nič se ne izgubi</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Vsak korak je mogoče razveljaviti. Česar niste shranili, program po sesutju ponudi v obnovitev. Ogled je v meniju Pomoč.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Dodelim vrstice celotnega kataloga?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Potrjeno v vsakem primeru ostane. Ta korak je mogoče razveljaviti.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Samo vrstice brez dodelitve</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Vse nepotrjeno na novo</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Dodeljeni vsi projekti</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Ciljnega projekta %1 ni.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Ciljni projekt: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Nastavitve: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Za to mesto ni namiga</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Izprazni seznam</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Datoteka</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Skupna raba</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Nazadnje odprto</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Urejanje</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>P&amp;ojdi</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>P&amp;regled</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Pogled</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Samo vrstice</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>Po&amp;moč</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Zbirka povezav</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Stanja vrstic</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Orodja</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Nobena datoteka ni odprta za urejanje.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Lastne spremembe na različici iz datoteke</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln spor: lastna odločitev</numerusform>
            <numerusform>%Ln spora: lastna odločitev</numerusform>
            <numerusform>%Ln spori: lastna odločitev</numerusform>
            <numerusform>%Ln sporov: lastna odločitev</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln spor: odločitev druge strani</numerusform>
            <numerusform>%Ln spora: odločitev druge strani</numerusform>
            <numerusform>%Ln spori: odločitev druge strani</numerusform>
            <numerusform>%Ln sporov: odločitev druge strani</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln spor: odločiti na novo</numerusform>
            <numerusform>%Ln spora: odločiti na novo</numerusform>
            <numerusform>%Ln spori: odločiti na novo</numerusform>
            <numerusform>%Ln sporov: odločiti na novo</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>V dnevnik %1 ni mogoče pisati (%2). Po sesutju bi bile spremembe izgubljene: kmalu shranite.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>Obnovljene različice ni mogoče zavarovati (%1). Sprostite prostor in odprite še enkrat; dnevnik je nespremenjen.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Obnovitev po sesutju</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Dnevnika %1 ni mogoče ustvariti (%2). Po sesutju bi bile spremembe izgubljene: pogosto shranjujte.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Nobena datoteka preslikav ni odprta.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Shranjevanje pravkar poteka.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Ni bilo shranjeno. %1 Shranite pod drugim imenom.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Zaklep datoteke %1 je izgubljen in ga ni mogoče obnoviti. Drugi bi lahko hkrati urejali datoteko.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>Samodejno varovanje ni uspelo (%1). Kmalu shranite.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>Sprememba ni bila prevzeta. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Spori označeni</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Razveljavljeno: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Ponovljeno: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>»%1« ne ustreza več temu, kar je bilo pozneje spremenjeno. Seznam korakov pove, kaj ovira.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Iskanje ciljnih projektov</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Prekinjeno, nič ni bilo ustvarjeno</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Dodeljevanje vrstic</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projekt: na istem mestu %1, drugje %2, razdeljeni %3, brez cilja %4, neberljivi %5</numerusform>
            <numerusform>%Ln projekta: na istem mestu %1, drugje %2, razdeljeni %3, brez cilja %4, neberljivi %5</numerusform>
            <numerusform>%Ln projekti: na istem mestu %1, drugje %2, razdeljeni %3, brez cilja %4, neberljivi %5</numerusform>
            <numerusform>%Ln projektov: na istem mestu %1, drugje %2, razdeljeni %3, brez cilja %4, neberljivi %5</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 od %Ln projekta</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
            <numerusform>%1 od %Ln projektov</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>od tega dodeljene %1, za pregled %2, brez cilja %3</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Prekinjeno: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln vrstico</numerusform>
            <numerusform>%1 z %Ln vrsticama</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>Prevzeta %Ln sprememba.</numerusform>
            <numerusform>Prevzeti %Ln spremembi.</numerusform>
            <numerusform>Prevzete %Ln spremembe.</numerusform>
            <numerusform>Prevzetih %Ln sprememb.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln vrstico sta obe strani odločili enako.</numerusform>
            <numerusform>%Ln vrstici sta obe strani odločili enako.</numerusform>
            <numerusform>%Ln vrstice sta obe strani odločili enako.</numerusform>
            <numerusform>%Ln vrstic sta obe strani odločili enako.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln vrstica je odločena različno in označena kot spor.</numerusform>
            <numerusform>%Ln vrstici sta odločeni različno in označeni kot spor.</numerusform>
            <numerusform>%Ln vrstice so odločene različno in označene kot spor.</numerusform>
            <numerusform>%Ln vrstic je odločenih različno in označenih kot spor.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln drugo nasprotje: velja različica iz datoteke.</numerusform>
            <numerusform>%Ln drugi nasprotji: velja različica iz datoteke.</numerusform>
            <numerusform>%Ln druga nasprotja: velja različica iz datoteke.</numerusform>
            <numerusform>%Ln drugih nasprotij: velja različica iz datoteke.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Vrstice %1 ni mogoče pokazati</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Nobena najdba ni izbrana</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Popravljeno: %1 v %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Tabele se primerjajo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>Pregledana %Ln dodeljena vrstica</numerusform>
            <numerusform>Pregledani %Ln dodeljeni vrstici</numerusform>
            <numerusform>Pregledane %Ln dodeljene vrstice</numerusform>
            <numerusform>Pregledanih %Ln dodeljenih vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln najdba</numerusform>
            <numerusform>%Ln najdbi</numerusform>
            <numerusform>%Ln najdbe</numerusform>
            <numerusform>%Ln najdb</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Soseščina</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Vrstice od %1 do %2 so zamaknjene za %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Vrstici %1 in %2 sta zamenjani</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>Vrstica %1 je zgrešena za %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>Vrstica %1 ima ciljno vrstico druge</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>Vrstica %1 je preskočena</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>odprt</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Popravljeno: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Najdba</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Popravljeno</translation>
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
        <translation>Imenik stare izdaje kataloga</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Imenik nove izdaje kataloga</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>&amp;Takoj dodeli vrstice</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nova preslikava</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Stara izdaja kataloga:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Katalog v njem:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Nova izdaja kataloga:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Izberi datoteko preslikav</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Datoteka preslikav:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>Ust&amp;vari</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Manjka imenik stare izdaje kataloga.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Manjka imenik nove izdaje kataloga.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Vsaka izdaja potrebuje imenik s katalogom.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Datoteka preslikav potrebuje ime.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Imenika %1 ni.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 že obstaja.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Ob shranjevanju se doda nova izdaja; izdaja z istim datumom se zamenja, z vsem, kar je v njej potrjeno.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Uporabi to datoteko</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>nosilec je poln</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>datoteka postane večja, kot je tu dovoljeno</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>manjka pravica za pisanje</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>nosilec je zaščiten pred pisanjem</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>mape ali datoteke ni več</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>na njenem mestu je nekaj drugega kot navadna datoteka</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>brez cilja</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Stara vrstica</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nova vrstica</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Druge razlike</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>Tabele projekta ni mogoče prebrati.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Pot:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Oznaka:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Različica projekta:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Različica tabele:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Vrstice:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Datoteka:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Išči</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtriraj</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Odpri mapo</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Zapri</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln odprta vrstica s predlogom</numerusform>
            <numerusform>%Ln odprti vrstici s predlogom</numerusform>
            <numerusform>%Ln odprte vrstice s predlogom</numerusform>
            <numerusform>%Ln odprtih vrstic s predlogom</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>v %Ln vzorcu</numerusform>
            <numerusform>v %Ln vzorcih</numerusform>
            <numerusform>v %Ln vzorcih</numerusform>
            <numerusform>v %Ln vzorcih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln od njih se še primerja</numerusform>
            <numerusform>%Ln od njih se še primerjata</numerusform>
            <numerusform>%Ln od njih se še primerjajo</numerusform>
            <numerusform>%Ln od njih se še primerja</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Izbrana: %Ln vrstica</numerusform>
            <numerusform>Izbrani: %Ln vrstici</numerusform>
            <numerusform>Izbrane: %Ln vrstice</numerusform>
            <numerusform>Izbranih: %Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln od njih izvzeta</numerusform>
            <numerusform>%Ln od njih izvzeti</numerusform>
            <numerusform>%Ln od njih izvzete</numerusform>
            <numerusform>%Ln od njih izvzetih</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Razlike odprtih vrstic</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln odprta vrstica brez naslednika</numerusform>
            <numerusform>%Ln odprti vrstici brez naslednika</numerusform>
            <numerusform>%Ln odprte vrstice brez naslednika</numerusform>
            <numerusform>%Ln odprtih vrstic brez naslednika</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Tabele se primerjajo: prebran %Ln projekt</numerusform>
            <numerusform>Tabele se primerjajo: prebrana %Ln projekta</numerusform>
            <numerusform>Tabele se primerjajo: prebrani %Ln projekti</numerusform>
            <numerusform>Tabele se primerjajo: prebranih %Ln projektov</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln vrstica</numerusform>
            <numerusform>%Ln vrstici</numerusform>
            <numerusform>%Ln vrstice</numerusform>
            <numerusform>%Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projekt</numerusform>
            <numerusform>%Ln projekta</numerusform>
            <numerusform>%Ln projekti</numerusform>
            <numerusform>%Ln projektov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>Še %Ln vrstica ima te in druge razlike</numerusform>
            <numerusform>Še %Ln vrstici imata te in druge razlike</numerusform>
            <numerusform>Še %Ln vrstice imajo te in druge razlike</numerusform>
            <numerusform>Še %Ln vrstic ima te in druge razlike</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Razlika</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Zanesljivost</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Izjeme</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>število v bližini</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>drugo število</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>drugo besedilo</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>vrednost dodana</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>vrednost manjka</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>ni primerljivo</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ni razlike</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>drug zapis</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>negotovo: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>cela mapa brez cilja: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>cel projekt brez cilja: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>ciljni projekt ne obstaja več: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 ne obstaja več</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ni podobne vrstice: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>ime projekta</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>drugo</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>druga vrednost</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>v vsaki vrstici ena ali več od teh</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>ni na voljo: nobena datoteka ni odprta</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>ni na voljo: zbirka povezav se povezuje</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>ni na voljo: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>ni na voljo: nobena zbirka povezav ni povezana</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>ni na voljo: upravitelj povezav ne čaka na izbor</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>ni na voljo: noben projekt ni izbran</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>ni na voljo: nobena vrstica ni izbrana</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Številka ERP za %1, vrstica %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Prosimo za dodelitev številke ERP.

Projekt: %1
Vrstica: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Sporočila ni bilo mogoče začeti.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Na tem računalniku ni nastavljen noben poštni program. Zahteva se glasi:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Ni vidne tabele, ki bi jo bilo mogoče natisniti</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Poročilo</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Natisni: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 je poslano tiskalniku</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 natisnjeno v %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 ni bilo mogoče natisniti.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>Tiskalnik ne sprejema strani.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 ni mogoče zapisati.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Stran</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Vprašanje</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Obvestilo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>V redu</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Da</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Prekliči</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Vrstica %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln vrstica je potrjena, čeprav vrednosti njenega območja nimajo nove vrstice.</numerusform>
            <numerusform>%Ln vrstici sta potrjeni, čeprav vrednosti njunih območij nimajo nove vrstice.</numerusform>
            <numerusform>%Ln vrstice so potrjene, čeprav vrednosti njihovih območij nimajo nove vrstice.</numerusform>
            <numerusform>%Ln vrstic je potrjenih, čeprav vrednosti njihovih območij nimajo nove vrstice.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Vzemi nazaj</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>Vseeno &amp;potrdi</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln vrstica</numerusform>
            <numerusform>%1: %Ln vrstici</numerusform>
            <numerusform>%1: %Ln vrstice</numerusform>
            <numerusform>%1: %Ln vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>Vrstica nima dodelitve območij vrednosti.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>manjka: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>večkrat: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>ni v starem območju: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Območje vrednosti vrstice</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: dodeljene vrednosti: %2 od %Ln</numerusform>
            <numerusform>%1: dodeljene vrednosti: %2 od %Ln</numerusform>
            <numerusform>%1: dodeljene vrednosti: %2 od %Ln</numerusform>
            <numerusform>%1: dodeljene vrednosti: %2 od %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Razlog odločitve</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Za:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Razlog:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>umaknjeno iz ponudbe</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>združeno z drugim delom</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>razdeljeno na več delov</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>premaknjeno v drug katalog</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>še ni pregledano</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Obnovitev</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Shranjeno</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Obnovljeno</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Na dan</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potrjena</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Za pregled</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Brez cilja</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>Shranjena različica je novejša od vsega, kar je mogoče obnoviti.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>O&amp;bnovi</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>S &amp;poznejšimi spremembami (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Odpri shranjeno različico</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln korak</numerusform>
            <numerusform>%Ln koraka</numerusform>
            <numerusform>%Ln koraki</numerusform>
            <numerusform>%Ln korakov</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Za %1 obstaja delo, ki ni bilo shranjeno: %2, nazadnje »%3«. Avtor: %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln vrstico</numerusform>
            <numerusform>%1 z %Ln vrsticama</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Uvažanje tabel</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 nima več datoteke CSV in ostane, kot je</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>V mapi ni datoteke CSV; nič ni bilo uvoženo</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Prekinjeno: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Ni bilo zapisano vse: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 ni mogoče zapisati.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Izvoz vrstic</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tabele (*.csv);;Vse datoteke (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Izvažanje vrstic</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Prekinjeno, nič ni bilo izvoženo</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Zapiši poročilo</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Datoteke PDF (*.pdf);;Strani HTML (*.html);;Vse datoteke (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Izdelava poročila</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Prekinjeno, poročilo ni bilo zapisano</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Stavljenje strani</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Poročilo zapisano v %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Preklicano, poročilo ni bilo izdelano</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Stran %1 od %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabela</numerusform>
            <numerusform>%Ln tabeli</numerusform>
            <numerusform>%Ln tabele</numerusform>
            <numerusform>%Ln tabel</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>nove %1, spremenjene %2, nespremenjene %3, neuvožene %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln vrstica izvožena v %1</numerusform>
            <numerusform>%Ln vrstici izvoženi v %1</numerusform>
            <numerusform>%Ln vrstice izvožene v %1</numerusform>
            <numerusform>%Ln vrstic izvoženih v %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 z %Ln vrstico</numerusform>
            <numerusform>%1 z %Ln vrsticama</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
            <numerusform>%1 s %Ln vrsticami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Dogovorjene zamenjave</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>v celotni izdaji kataloga</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Dogovori</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Prekliči dogovor</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>Do&amp;kazi</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>P&amp;revzemi</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Zamenjava pove, da stara vrednost ustreza novi. Ustvarja predloge, vendar ničesar ne potrdi.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>dogovorjeno</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>dogovorjeno v %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Tabele se berejo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln vrstica za</numerusform>
            <numerusform>%Ln vrstici za</numerusform>
            <numerusform>%Ln vrstice za</numerusform>
            <numerusform>%Ln vrstic za</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln vrstica proti</numerusform>
            <numerusform>%Ln vrstici proti</numerusform>
            <numerusform>%Ln vrstice proti</numerusform>
            <numerusform>%Ln vrstic proti</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Nobena ni dogovorjena. Ko je seznam razlik odprt, so njegove zamenjave ponujene tukaj.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Poročilo o preslikavi: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Izdaja kataloga %1 v %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Ustvarjeno %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Stanje vrstic</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Po mapah, z vsem pod njimi</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Po projektih</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Zakaj so vrstice odprte</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>V čem se odprte vrstice razlikujejo od svojih predlogov</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Naključni vzorci</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Kdo je kaj odločil</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Odprte vrstice</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Česa ni bilo mogoče prebrati</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Vrstice</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Potrjena</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Potrjene kot opuščene</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Zanesljivo dodeljene</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Za pregled</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Brez cilja</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>V sporu</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Vrstica</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Oznaka</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Razlog</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Razlike</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projekti</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Verjetnost</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Izjeme</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Primeri</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Kaj</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Ocenjene</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Pravilne</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Največ napačnih (s 95 % zanesljivostjo)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>zavrnjen</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabela ni berljiva</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>ni primerljivo</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ni razlike</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>nobene</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>in še %1</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>dva sta odločila različno</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>odloča nekdo drug</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>tabela ni berljiva</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>pogoj ali formula ne uspe</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>noben cilj ni pristojen</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>manjka stolpec</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>več vrstic je enakih</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>preveč različno</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>enako, le ni potrjeno</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>negotovo: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Odprte vrstice brez naslednika</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Vrstice, potrjene kot opuščene</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Kaj imajo skupnega</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>skupaj</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Prevzeto iz prejšnjih preslikav</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Prejšnja preslikava</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Še vedno kot prevzeto</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Ocenjene vrstice</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Opravljene vrstice: %1 od %2; odprte: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Beri ciljne projekte iz skladišča</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Katalog = svn://strežnik:vrata/pot</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>V vsaki vrstici en katalog. Brez vrstice je ime kataloga hkrati ime njegovega strežnika.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>najnovejša</translation>
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
        <translation>Strež&amp;nik:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Revi&amp;zija:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Prostor na &amp;tem računalniku:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Čakanje na &amp;strežnik:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Strežnik, vrstica %1: &quot;%2&quot; nima oblike &quot;Katalog = svn://strežnik:vrata/pot&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Prijava v skladišče</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 zahteva prijavo.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Ime in geslo veljata do konca programa in se ne shranita.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>Vrstice %1 ni mogoče pokazati</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Nobena vrstica ni več odprta</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Tabele še niso primerjane</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Od začetka: %Ln odprta vrstica</numerusform>
            <numerusform>Od začetka: %Ln odprti vrstici</numerusform>
            <numerusform>Od začetka: %Ln odprte vrstice</numerusform>
            <numerusform>Od začetka: %Ln odprtih vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Odprte vrstice si sledijo po negotovosti</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Odprte vrstice si sledijo po mestu</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>Vrstica ne spada v izbrani vzorec</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Vrstica %1 izvzeta</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Noben vzorec ni izbran ali pa so vse njegove vrstice odločene</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln vrstica</numerusform>
            <numerusform>%Ln vrstici</numerusform>
            <numerusform>%Ln vrstice</numerusform>
            <numerusform>%Ln vrstic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>potrdim v %Ln projektu?</numerusform>
            <numerusform>potrdim v %Ln projektih?</numerusform>
            <numerusform>potrdim v %Ln projektih?</numerusform>
            <numerusform>potrdim v %Ln projektih?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Ta korak je mogoče razveljaviti.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Potrdi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln vrstica potrjena</numerusform>
            <numerusform>%Ln vrstici potrjeni</numerusform>
            <numerusform>%Ln vrstice potrjene</numerusform>
            <numerusform>%Ln vrstic potrjenih</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Kandidata %1 ni</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Vrstica %1 → %2 potrjena</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Dogovorjene zamenjave: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Izberite vzorec ali označite odprte vrstice</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Naključni vzorec</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Izžrebaj</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Naključni vzorec, vrstica %1 od %2: + pravilno, − napačno</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Noben naključni vzorec ne poteka</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Vse vrstice naključnega vzorca so že odločene</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>pravilno %1 od %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Naključni vzorec zavrnjen, %1; ocenil(a) %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>vse vrstice ocenjene</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>s 95 % zanesljivostjo manj kot %1 % napačnih</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Naključni vzorec: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>ocenil(a) %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>tam je bila napačna</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>Vrstica %1 je napačna: naključni vzorec je končan</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Naprej</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Oglej si napačno vrstico</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln od njih je negotova.</numerusform>
            <numerusform>%Ln od njih sta negotovi.</numerusform>
            <numerusform>%Ln od njih so negotove.</numerusform>
            <numerusform>%Ln od njih je negotovih.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Vsi vzorci so opravljeni</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>v %Ln projektu</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
            <numerusform>v %Ln projektih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln vrstica potrjena kot opuščena</numerusform>
            <numerusform>%Ln vrstici potrjeni kot opuščeni</numerusform>
            <numerusform>%Ln vrstice potrjene kot opuščene</numerusform>
            <numerusform>%Ln vrstic potrjenih kot opuščenih</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>Vrstica %1 v %2 je napačna. Množica je razdeljena; s katerim delom naj se nadaljuje?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Toliko od %Ln vrstice se izžreba in oceni posamično. %1 pravilnih pove s 95 % zanesljivostjo, da je napačnih manj kot 5 %, %2 pravilnih manj kot 1 %.</numerusform>
            <numerusform>Toliko od %Ln vrstic se izžreba in oceni posamično. %1 pravilnih pove s 95 % zanesljivostjo, da je napačnih manj kot 5 %, %2 pravilnih manj kot 1 %.</numerusform>
            <numerusform>Toliko od %Ln vrstic se izžreba in oceni posamično. %1 pravilnih pove s 95 % zanesljivostjo, da je napačnih manj kot 5 %, %2 pravilnih manj kot 1 %.</numerusform>
            <numerusform>Toliko od %Ln vrstic se izžreba in oceni posamično. %1 pravilnih pove s 95 % zanesljivostjo, da je napačnih manj kot 5 %, %2 pravilnih manj kot 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Konzola skriptov</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Izpis skriptov</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Vrstica skripta</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Vrstica JavaScripta. Enter jo izvede, Tab dopolni, Gor in Dol listata.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Ustavi</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Ustavi tekoči skript (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Izprazni</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Izbriše izpis</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Skript %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(konzola)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Končano</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Končano, stanje %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Vrstica %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Prevelika je.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Ni besedilo v UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 ni mogoče prebrati. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Odpri skript</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Skripti (*.js);;Vse datoteke (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Shrani skript</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 ni mogoče zapisati. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Skript ni shranjen.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(brez imena)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nov skript</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Odpri …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Shrani</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Izvedi</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Ustavi</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumenti:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Besedilo skripta</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumenti</translation>
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
        <translation>Dnevnika %1 ni mogoče prebrati (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Za zadnjo zaključeno sejo dnevnik %1 ni berljiv. Kaj je bilo tam, ni znano; dnevnik se ohrani.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>Konec dnevnika %1 ni berljiv. Zadnja sprememba morda manjka.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Dnevnik %1 je poškodovan. Za poškodbo še ustreza %Ln sprememba, ne ustreza več: %2; morda manjkajo še druge. Dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan. Za poškodbo še ustrezata %Ln spremembi, ne ustreza več: %2; morda manjkajo še druge. Dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan. Za poškodbo še ustrezajo %Ln spremembe, ne ustreza več: %2; morda manjkajo še druge. Dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan. Za poškodbo še ustreza %Ln sprememb, ne ustreza več: %2; morda manjkajo še druge. Dnevnik se ohrani.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Dnevnik %1 je poškodovan ali ne ustreza datoteki preslikav. Manjka vsaj %Ln poznejša sprememba; dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan ali ne ustreza datoteki preslikav. Manjkata vsaj %Ln poznejši spremembi; dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan ali ne ustreza datoteki preslikav. Manjkajo vsaj %Ln poznejše spremembe; dnevnik se ohrani.</numerusform>
            <numerusform>Dnevnik %1 je poškodovan ali ne ustreza datoteki preslikav. Manjka vsaj %Ln poznejših sprememb; dnevnik se ohrani.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Po &amp;odločitvi naprej na naslednjo odprto vrstico</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Nastavitve</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Kot namizje</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Svetlo</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Temno</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nikoli</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Jezik:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>B&amp;arve:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Veli&amp;kost pisave:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Varnostna kopija vsaki&amp;h:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Visok kontrast</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Ena mapa na vrstico, iz katere se sme brati, kar datoteke kataloga navajajo zunaj katalogov.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Dovoljene mape:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Dovoljene mape: »%1« ni mapa s polno potjo.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Preslikava se ne deli z nikomer. Najprej izberite skupno kopijo.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 že obstaja in je druga preslikava. Izberite drugo kopijo ali pa obstoječo prenesite v novo datoteko.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Drugi so od zadnje posodobitve nekaj objavili.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Vrstice v sporu se ne objavijo: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>V mapah drugih so spremembe: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Mapa je že zasedena: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Pravkar objavlja nekdo drug (%1). Čez trenutek poskusite znova.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>Skupna kopija ni dosegljiva: %1. Lastna datoteka je nespremenjena; poskusite pozneje.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Ena od datotek ni berljiva preslikava: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>Ni bilo mogoče zapisati: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Ni uspelo.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Branje skupne kopije</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>V skupni rabi prek %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Pridobivanje sprememb drugih</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Ni nič novega</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Objavljanje sprememb</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Preslikava urejena</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Objavljeno, stanje %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Najprej se to prevzame. Potem je mogoče objaviti.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Posodobi</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Vseeno objavi</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Prevzemi mape</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>P&amp;revzemi</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Vpisovanje map</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Nimate več lastnih map</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Lastne mape: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(tukaj)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>jo ima odprto</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>je nima odprte</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>nazadnje %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>mape %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Lastno stanje %1, najnovejše stanje %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Drugi so nekaj objavili.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Od drugih ni nič novega.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Lastne spremembe še niso objavljene.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Skupna kopija: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>Zadnja objava je bila prekinjena, vendar je prispela.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>Zadnja objava je bila prekinjena. Objavite še enkrat.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Skupna datoteka je bila v delovni kopiji spremenjena in ni bila oddana. To je ohranjeno v %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>Delovna kopija je bila zapuščena sredi dela in je bila pospravljena.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>Upravljanje delovne kopije je bilo poškodovano in je bilo preneseno znova; prejšnje je %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Nekaj prekinjenega je bilo spravljeno v red.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Mape kataloga, ločene z vejicami; * pomeni poljubne znake, ? enega. Prazno vrne vse:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>razveljavi</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Vse odločeno</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Vrstice, ki še potrebujejo odločitev</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Samo za branje</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filter: nobena vrstica</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Vrstice, ki jih kaže filter prek vseh vrstic</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln vrstica&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln vrstici&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln vrstice&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln vrstic&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Odprte: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Nobena vrstica še ni dodeljena</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Napredek</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Prekine tekoče delo; kar je končano, ostane</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Napake in opozorila: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Koraki</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Išči kdo, kaj ali vrstice</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Nazaj do sem</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Razveljavi ta in vse poznejše veljavne korake</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Na vrs&amp;tico</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Razveljavi z odvisnimi (%Ln)</numerusform>
            <numerusform>&amp;Razveljavi z odvisnimi (%Ln)</numerusform>
            <numerusform>&amp;Razveljavi z odvisnimi (%Ln)</numerusform>
            <numerusform>&amp;Razveljavi z odvisnimi (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Razveljavi samo tega</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Ponovi s prejšnjimi (%Ln)</numerusform>
            <numerusform>&amp;Ponovi s prejšnjimi (%Ln)</numerusform>
            <numerusform>&amp;Ponovi s prejšnjimi (%Ln)</numerusform>
            <numerusform>&amp;Ponovi s prejšnjimi (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Ponovi</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Še ni korakov</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Noben drug korak ni odvisen od njega.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>Korak je mogoče ponoviti samostojno.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Na tem temeljijo: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Temelji na: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Ovirajo, ker so odločili drugače: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Tam je zdaj nekaj drugega, o čemer ni odločil noben korak tega seznama, na primer drug program. Koraka ni več mogoče premakniti.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
            <numerusform>in še %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>velja</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>razveljavljen</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>prehiten</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Na dan</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Kaj</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Vrstice</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>Sprememba v %1 začne veljati šele, ko se vrstice znova dodelijo. Pri tem se ohrani samo, kar je potrjeno.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln vrstica v %1 je bila potrjena kot opuščena in ni več: %2</numerusform>
            <numerusform>%Ln vrstici v %1 sta bili potrjeni kot opuščeni in nista več: %2</numerusform>
            <numerusform>%Ln vrstice v %1 so bile potrjene kot opuščene in niso več: %2</numerusform>
            <numerusform>%Ln vrstic v %1 je bilo potrjenih kot opuščenih in ni več: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>V %1 ostajajo prezrte spremenljivke: %2. Če želite katero znova preslikati, izberite &quot;Formula...&quot; ali pa vrstico izbrišite in jo vnesite na novo.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Pogoj ciljnega projekta %1 v %2 je odpadel.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Preslikava spremenljivk ciljnega projekta %1 v %2 je odpadla.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Vrstica %1 → %2 v %3: ciljno vrstico ima tudi %Ln druga vrstica: %4</numerusform>
            <numerusform>Vrstica %1 → %2 v %3: ciljno vrstico imata tudi %Ln drugi vrstici: %4</numerusform>
            <numerusform>Vrstica %1 → %2 v %3: ciljno vrstico imajo tudi %Ln druge vrstice: %4</numerusform>
            <numerusform>Vrstica %1 → %2 v %3: ciljno vrstico ima tudi %Ln drugih vrstic: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln vrstica v %1 deli svojo ciljno vrstico z novo dodeljenimi: %2</numerusform>
            <numerusform>%Ln vrstici v %1 delita svojo ciljno vrstico z novo dodeljenimi: %2</numerusform>
            <numerusform>%Ln vrstice v %1 delijo svojo ciljno vrstico z novo dodeljenimi: %2</numerusform>
            <numerusform>%Ln vrstic v %1 deli svojo ciljno vrstico z novo dodeljenimi: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln spor sprejet</numerusform>
            <numerusform>%Ln spora sprejeta</numerusform>
            <numerusform>%Ln spori sprejeti</numerusform>
            <numerusform>%Ln sporov sprejetih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln vrstica potrjena</numerusform>
            <numerusform>%Ln vrstici potrjeni</numerusform>
            <numerusform>%Ln vrstice potrjene</numerusform>
            <numerusform>%Ln vrstic potrjenih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln vrstica potrjena kot opuščena</numerusform>
            <numerusform>%Ln vrstici potrjeni kot opuščeni</numerusform>
            <numerusform>%Ln vrstice potrjene kot opuščene</numerusform>
            <numerusform>%Ln vrstic potrjenih kot opuščenih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln vrstica dodeljena</numerusform>
            <numerusform>%Ln vrstici dodeljeni</numerusform>
            <numerusform>%Ln vrstice dodeljene</numerusform>
            <numerusform>%Ln vrstic dodeljenih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>dodelitev %Ln vrstice razveljavljena</numerusform>
            <numerusform>dodelitev %Ln vrstic razveljavljena</numerusform>
            <numerusform>dodelitev %Ln vrstic razveljavljena</numerusform>
            <numerusform>dodelitev %Ln vrstic razveljavljena</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>dodelitev območij vrednosti %Ln vrstice spremenjena</numerusform>
            <numerusform>dodelitev območij vrednosti %Ln vrstic spremenjena</numerusform>
            <numerusform>dodelitev območij vrednosti %Ln vrstic spremenjena</numerusform>
            <numerusform>dodelitev območij vrednosti %Ln vrstic spremenjena</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>spor %Ln vrstice rešen</numerusform>
            <numerusform>spor %Ln vrstic rešen</numerusform>
            <numerusform>spor %Ln vrstic rešen</numerusform>
            <numerusform>spor %Ln vrstic rešen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln vrstica spremenjena</numerusform>
            <numerusform>%Ln vrstici spremenjeni</numerusform>
            <numerusform>%Ln vrstice spremenjene</numerusform>
            <numerusform>%Ln vrstic spremenjenih</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>vrstica %1 → %2 potrjena</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>vrstica %1 → %2 dodeljena</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (prej %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>vrstica %1 potrjena kot opuščena (prej %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>vrstica %1 potrjena kot opuščena</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>dodelitev vrstice %1 razveljavljena (prej %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projekt dodan</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projekt odstranjen</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Ciljni projekt dodan</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Ciljni projekt odstranjen</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Vrstni red ciljnih projektov spremenjen</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Pogoji spremenjeni</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Preslikava spremenljivk spremenjena</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Različice spremenjene</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Stanje spremenjeno</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 v %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 v %Ln projektu</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
            <numerusform>%1 v %Ln projektih</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>Na&amp;zaj</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Preskoči</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Naprej</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Končaj</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, vrstica %2: vnos %3 dodelitve območij vrednosti nima oblike {NAME=VREDNOST} -&gt; številka vrstice: &quot;%4&quot;. Popravite ga ali ga razrešite na novo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, vrstica %2: dodelitev območij vrednosti navaja vrstico %3, vendar vrstica nima ciljnega projekta. Dodelite jo ali izpraznite besedilo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, vrstica %2: dodelitev območij vrednosti navaja vrstico %3, ki je v %4 ni. Popravite jo ali jo razrešite na novo.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: tabele ciljnega projekta %2 ni mogoče prebrati, njegove dodelitve območij vrednosti niso preverjene. Preverite imenik ciljnih projektov (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Preverjanje dodelitev območij vrednosti</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln dodelitev območij vrednosti preverjena</numerusform>
            <numerusform>%Ln dodelitvi območij vrednosti preverjeni</numerusform>
            <numerusform>%Ln dodelitve območij vrednosti preverjene</numerusform>
            <numerusform>%Ln dodelitev območij vrednosti preverjenih</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>brez pripomb</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln pripomba</numerusform>
            <numerusform>%Ln pripombi</numerusform>
            <numerusform>%Ln pripombe</numerusform>
            <numerusform>%Ln pripomb</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (prekinjeno): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Usklajevanje izdaj katalogov</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Izšel je nov katalog in vsako vrstico stare izdaje je treba prenesti na vrstico nove. Program predlaga, vi preverite in potrdite.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Nazadnje odprto:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>Nova &amp;preslikava...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Ustvari novo datoteko preslikav iz dveh izdaj kataloga</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Odpri...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Odpre datoteko preslikav</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Odpri &amp;vzorčni katalog</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Odpre lastno datoteko preslikav za priloženi vzorčni katalog</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>S&amp;hrani</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Zapiše vse spremembe v datoteko preslikav</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Sh&amp;rani kot...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Zapiše v drugo datoteko preslikav</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Zapre datoteko preslikav</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Imeniki katalogov...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Izbere imenika stare in nove izdaje kataloga</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Skupna kopija...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Izbere kopijo, prek katere več ljudi dela na tej preslikavi</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Osveži</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Prevzame, kar so objavili drugi</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>O&amp;bjavi</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Lastne spremembe posreduje drugim</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Prevzemi mape...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Drugim sporoči, katere mape urejate sami</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Kdo dela na čem</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Pokaže, kdo ima preslikavo odprto in komu pripadajo katere mape</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Uvozi tabele...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Iz mape z datotekami CSV naredi projekte kataloga</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Izvozi vrs&amp;tice...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Zapiše vse vrstice izdaje z njihovimi dodelitvami v datoteko CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Poroči&amp;lo...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Kot PDF ali HTML zapiše, kako daleč je izdaja in zakaj so vrstice odprte</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Končaj</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Konča program</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>Ra&amp;zveljavi</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Razveljavi zadnji korak</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Uveljavi</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Znova izvede razveljavljeni korak</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>Potrdi &amp;vrstice...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>V enem koraku potrdi dodelitev označenih ali vseh prikazanih vrstic</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Potrdi vrstice &amp;brez cilja kot opuščene...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Od označenih ali vseh prikazanih vrstic potrdi tiste brez cilja kot opuščene</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>Razveljavi dodeli&amp;tve...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>V enem koraku razveljavi dodelitev označenih ali vseh prikazanih vrstic</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Razveljavi dodelitve &amp;in potrdi...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Označene ali vse prikazane vrstice so opuščene: razveljavi in potrdi v enem koraku</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>&amp;Dodeli vse projekte...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Poišče dodelitve za vse vrstice kataloga; potrjeno ostane</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Preveri dodelitve &amp;območij vrednosti</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Primerja vsa besedila območij vrednosti s tabelami ciljnih projektov</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>&amp;Skript...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Odpre okno, v katerem se pišejo in izvajajo skripti</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Nastavitve...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Jezik, pisava, tipke, varnostna kopija</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Naslednja odprta vrstica</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Gre na naslednjo vrstico, ki potrebuje odločitev, tudi v naslednjem projektu</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Prejšnja &amp;odprta vrstica</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Gre na prejšnjo vrstico, ki potrebuje odločitev, tudi v prejšnjem projektu</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Pojdi na vrstico...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Poišče vrstico projekta po številki ali oznaki</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>&amp;Druga tabela</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Preklaplja med staro in novo tabelo</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>N&amp;ajdi...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Najde projekte, vrstice, ukaze in nastavitve po delih besed</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Vzorci razlik</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Pokaže, v čem se odprte vrstice razlikujejo od svojih predlogov</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Staro in novo</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Pokaže stare in nove vrednosti vrstice drugo ob drugi ter njene kandidate</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Potrdi vzorec...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>V enem koraku potrdi vse vrstice izbranega vzorca</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Izvzemi vrstico</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>Vrstica se ne potrdi z drugimi vrsticami vzorca</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Naslednja vrstica vzorca</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Gre na naslednjo odprto vrstico izbranega vzorca</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>P&amp;rejšnja vrstica vzorca</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Gre na prejšnjo odprto vrstico izbranega vzorca</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Nasle&amp;dnji vzorec</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Izbere naslednji vzorec na seznamu</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Najprej najmanj &amp;zanesljive</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Odprte vrstice si sledijo po nevarnosti zmote namesto po mestu</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>Sos&amp;eščina</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Pokaže, kje se dodelitve sosednjih vrstic ne ujemajo</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Poravnaj vrs&amp;tice</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>V enem koraku popravi izbrano najdbo soseščine</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Za&amp;menjave...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Dogovori zamenjave vrednosti za izdajo kataloga ali jih prekliče</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Na&amp;ključni vzorec...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Izžreba vrstice izbranega vzorca ali označenih vrstic, ki se ocenijo posamično</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Naključni vzore&amp;c: pravilno</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>Prikazana vrstica naključnega vzorca je dodeljena pravilno</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>N&amp;aključni vzorec: napačno</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>Prikazana vrstica naključnega vzorca je dodeljena napačno; vzorec se konča</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Kandidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Vrstici dodeli tega kandidata in ga potrdi</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Kandidat &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Kandidat &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Kandidat &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Kandidat &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Območje vrednosti vrstice</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Pokaže, katere vrednosti starega območja imajo nove vrstice</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Sp&amp;ori</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Pokaže vrstice, ki sta jih dve strani odločili različno</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Naslednji odprti spor</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Gre na naslednjo vrstico, katere spor je še odprt</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Spor: lastna odločitev</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>V tem sporu velja lastna odločitev</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Spor: druga odločitev</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>V tem sporu velja odločitev druge strani</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Spor: odloči na novo</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Nobena od odločitev ne velja; vrstica je spet brez cilja</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Na novo zgradi prikaz: drevo, statistiko, tabele z diska</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Priročnik</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Odpre priročnik na mestu, za katero gre</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>Tip&amp;ke...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Pokaže in spremeni tipke vseh ukazov</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Namig za to mesto</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Pokaže namig tam, kamor gredo tipke: v tabeli, zakaj je vrstica v svojem stanju</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Ogled</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>V nekaj korakih pokaže, kje je kaj</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>O &amp;tem programu</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Različica in imeniki</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Koraki...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Našteje vse korake, tudi prejšnjih sej, in razveljavi posamezne</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Naslednji projekt z odprtimi vrsticami</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Gre na naslednji projekt, kjer je treba odločiti</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Prejšnji projekt z odprtimi vrsticami</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Gre na prejšnji projekt, kjer je treba odločiti</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filter prek vseh vrstic</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Izbere vrstice vseh projektov po stanju, razlogu, razliki in osebi; F8 gre po njih</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>N&amp;atisni...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Pokaže strani vidne tabele in jih natisne</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Pokaže strani poročila in jih natisne</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Natisni poročilo...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Prevzemi odločitve...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Iz prejšnje preslikave v enem koraku prevzame, kar je bilo za isto staro izdajo že potrjeno</translation>
    </message>
</context>
</TS>
