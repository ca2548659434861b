<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 a katalóguson kívül van, és nem lesz kiírva; javítsa ki a leíró „path” mezőjét, vagy távolítsa el a hivatkozást</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 tizedesvesszővel</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: ez a(z) %2 rész más munkáé, mint %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>a cellákon belüli idézőjelek karakternek számítanak, először a(z) %1. sor %2. oszlopában</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>dátum</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>dátum és idő</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Átvett döntések innen: %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projektek a részekben: %1 (különböző: %2), a teljes munkában: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>a(z) %1 rész hiányzik</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>a(z) %1 rész többször is megvan (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>szöveg</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topológia (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>logikai érték</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>értéktartomány (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>szám</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>számított (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>a könyvtár nem olvasható</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>a könyvtár nem hozható létre</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>ez nem olyan rész, amelyet a velkmap assign --shard írt</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>ez nem közönséges fájl</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>a(z) „%1” kulcs %2 sorban hiányzik vagy ismétlődik, összesen %Ln sorból</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>%2 „%1” feltétele nem értelmezhető; ami hozzá lett rendelve, nem biztos</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>a(z) %1. oszlopnak nincs neve, a neve mostantól „%2”</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>a(z) %1. oszlop neve ismét „%2”, a neve mostantól „%3”</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>a(z) „%1” oszlop a leíró szerint: %2; cellái ilyennek látszanak: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>a(z) „%1” oszlop megszűnt</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>a korábbi importálás táblázata nem olvasható, sorazonosítói nem lennének megtarthatók; javítsa ki, vagy törölje, hogy újrakezdje</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>a dokumentumok táblázatának nincs %1 oszlopa</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>a projekt táblázata nem olvasható</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>%1 táblázata nem olvasható; a projekt sorai változatlanok maradnak</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>%1 táblázata nem olvasható; ami nélküle lett hozzárendelve, nem biztos</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>a sor csak kocsivissza jellel végződik; mentse a fájlt soremelésekkel</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>a cellákat pontosvesszők választják el</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>a cellákat tabulátorok választják el</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>az egyetlen oszlop neve „%1”; ha több van, adja meg az elválasztójukat a --separator kapcsolóval</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>az első sor adatnak látszik; az oszlopok nevének számít, ezért tegyen elé egy sort a nevekkel</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>ez a katalógus nem létezik</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>ugyanazt a táblázatot adná, mint %1; nevezze át az egyiket</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>nincs „%1” oszlop</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>nincs egyetlen rész sem</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>nem annyi projekt van benne, amennyit megnevez</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>egész szám</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>beolvasva mint %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>belső (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>egyik projektnek sincs dátuma</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>nem található kulcsoszlop; a sor azonosítója a helye a fájlban</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>nem olvasható: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>nem írható: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>nem nyitható meg: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>új oszlop: „%1”</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>csak kis- és nagybetűkben térnek el: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>ha más a kódolása, adja meg az --encoding kapcsolóval</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
