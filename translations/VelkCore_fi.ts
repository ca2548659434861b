<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>osion otsikko ilman loppua</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>lainausmerkki ilman loppua; teksti otetaan sellaisenaan</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Asiakirjassa ei ole arvoa.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Tämä ei ole JSONia.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Se ei ole tavallinen tiedosto.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Tekstin lopettava lainausmerkki puuttuu.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Jäsenen nimi puuttuu.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>Kopio poikkeaa alkuperäisestä.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Tekstissä oleva ohjausmerkki on kirjoitettava ohjaussarjana.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Tekstissä on puolikas korvikepari.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Tekstissä on tuntematon ohjaussarja.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Teksti ei ole UTF-8:aa.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Arvo puuttuu.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Luvulla ei ole numeroita pisteen jälkeen.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Luvulla ei ole numeroita eksponentissa.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Luvulla ei ole numeroita.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Luku on liian suuri.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>\u vaatii jälkeensä neljä heksadesimaalinumeroa.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Asiakirjan jälkeen on vielä jotain.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Jäsenen nimen jälkeen puuttuu kaksoispiste.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Jäsenen jälkeen puuttuu pilkku tai }.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Luettelon arvon jälkeen puuttuu pilkku tai ].</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>tekstiä lainausmerkkien jälkeen; kaikki otetaan sellaisenaan</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>rivi %1, sarake %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>se on hakemisto</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>se ei ole laajennus: VELK_EXTENSION puuttuu</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>se ei ole tavallinen tiedosto</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>nimessä on NUL-merkki</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>osion otsikon jälkeistä tekstiä ei oteta huomioon</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>tiedosto on UTF-16; tallenna se UTF-8:na</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>laajennus on tehty versiolle %1, tämä on %2; käännä se uudelleen</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>rivit päättyvät pelkkiin vaununpalautuksiin; tallenna tiedosto rivinvaihdoin</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>tuntematon ohjaussarja %1 otetaan sellaisenaan</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>on vain luettavissa</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>ei UTF-8</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ei voi lukea: %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>ei voi kirjoittaa: %1</translation>
    </message>
    <message>
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ei osio, avain eikä kommentti</translation>
    </message>
</context>
</TS>
