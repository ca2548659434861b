<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 leži zunaj kataloga in ne bo zapisano; popravite »path« v deskriptorju ali odstranite povezavo</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 z decimalno vejico</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: to je del %2 drugega opravila kot %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>narekovaji znotraj celic veljajo kot znaki, prvič v vrstici %1, stolpcu %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>datum in čas</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Odločitve, prevzete iz %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekti v delih: %1 (različni: %2), v celotnem opravilu: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>del %1 manjka</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>del %1 obstaja večkrat (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>besedilo</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologija (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>logična vrednost</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>razpon vrednosti (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>število</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>izračunano (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>imenika ni mogoče prebrati</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>imenika ni mogoče ustvariti</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>to ni del, ki ga je zapisal velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>to ni običajna datoteka</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>ključ »%1« manjka ali se ponavlja: %2 od %Ln vrstice</numerusform>
            <numerusform>ključ »%1« manjka ali se ponavlja: %2 od %Ln vrstic</numerusform>
            <numerusform>ključ »%1« manjka ali se ponavlja: %2 od %Ln vrstic</numerusform>
            <numerusform>ključ »%1« manjka ali se ponavlja: %2 od %Ln vrstic</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>pogoja »%1« za %2 ni mogoče razčleniti; kar je bilo dodeljeno, ni zanesljivo</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>stolpec %1 nima imena in se zdaj imenuje »%2«</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>stolpec %1 ima spet ime »%2« in se zdaj imenuje »%3«</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>stolpec »%1« je po deskriptorju: %2; njegove celice so videti kot: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>stolpca »%1« ni več</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>tabele iz prejšnjega uvoza ni mogoče prebrati, njenih ID-jev vrstic ne bi bilo mogoče ohraniti; popravite jo ali jo izbrišite, da začnete znova</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>tabela dokumentov nima stolpca %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>tabele projekta ni mogoče prebrati</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>tabele %1 ni mogoče prebrati; vrstice projekta ostanejo, kot so</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>tabele %1 ni mogoče prebrati; kar je bilo dodeljeno brez nje, ni zanesljivo</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>vrstica se konča samo s pomikom na začetek; shranite datoteko s prelomi vrstic</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>celice so ločene s podpičji</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>celice so ločene s tabulatorji</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>edini stolpec se imenuje »%1«; če jih je več, navedite njihovo ločilo s --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>prva vrstica je videti kot podatki; velja za imena stolpcev, zato pred njo postavite vrstico z imeni</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>tega kataloga ni</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>bi dala isto tabelo kot %1; eno od njiju preimenujte</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>stolpca »%1« ni</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>ni nobenega dela</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>v njem ni toliko projektov, kot jih navaja</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>celo število</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>prebrano kot %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>notranje (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>noben projekt nima datuma</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>ključnega stolpca ni; ID vrstice je njeno mesto v datoteki</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ni mogoče prebrati: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>ni mogoče zapisati: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ni mogoče odpreti: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nov stolpec »%1«</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>razlikujejo se samo po velikih in malih črkah: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>če je kodirana drugače, navedite kodiranje z --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>»%1«</translation>
    </message>
</context>
</TS>
