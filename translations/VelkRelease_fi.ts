<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 on luettelon ulkopuolella, eikä sitä kirjoiteta; korjaa kuvaustiedoston "path" tai poista linkki</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 desimaalipilkulla</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1: se on osa %2 toisesta työstä kuin %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>solujen sisällä olevat lainausmerkit luetaan merkeiksi, ensimmäisenä rivillä %1, sarakkeessa %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>päivämäärä</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>päivämäärä ja kellonaika</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Päätökset siirretty kohteesta %1: %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projekteja osissa: %1 (eri projekteja: %2), koko työssä: %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>osa %1 puuttuu</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>osa %1 on olemassa monta kertaa (%2): %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>teksti</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologia (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>totuusarvo</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>arvoalue (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>luku</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>laskettu (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>hakemistoa ei voi lukea</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>hakemistoa ei voi luoda</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>se ei ole osa, jonka velkmap assign --shard on kirjoittanut</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>se ei ole tavallinen tiedosto</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>avain "%1" puuttuu tai toistuu: %2 / %Ln rivi</numerusform>
            <numerusform>avain "%1" puuttuu tai toistuu: %2 / %Ln riviä</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>kohteen %2 ehto "%1" ei jäsenny; kohdistettu ei ole varmaa</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>sarakkeella %1 ei ole nimeä, ja sen nimi on nyt "%2"</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>sarakkeella %1 on jälleen nimi "%2", ja sen nimi on nyt "%3"</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>sarake "%1" on kuvaustiedoston mukaan: %2; sen solut näyttävät tältä: %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>sarake "%1" on poistunut</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>aiemman tuonnin taulukkoa ei voi lukea, joten sen rivien tunnuksia ei voisi säilyttää; korjaa se tai poista se aloittaaksesi alusta</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>asiakirjojen taulukossa ei ole saraketta %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>projektin taulukkoa ei voi lukea</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>taulukkoa %1 ei voi lukea; projektin rivit pysyvät ennallaan</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>taulukkoa %1 ei voi lukea; ilman sitä kohdistettu ei ole varmaa</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>rivi päättyy pelkkään vaununpalautukseen; tallenna tiedosto rivinvaihdoin</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>solut on erotettu puolipisteillä</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>solut on erotettu sarkaimilla</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>ainoan sarakkeen nimi on "%1"; jos niitä on useita, ilmoita erotin valitsimella --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>ensimmäinen rivi näyttää tiedoilta; se luetaan sarakkeiden nimiksi, joten lisää sen eteen rivi, jossa on nimet</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>tätä luetteloa ei ole</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>tuottaisi saman taulukon kuin %1; nimeä toinen uudelleen</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>saraketta "%1" ei ole</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>osaa ei ole</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>siinä ei ole niin monta projektia kuin se ilmoittaa</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>kokonaisluku</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>luettu muodossa %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>sisäinen (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>millään projektilla ei ole päivämäärää</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>avainsaraketta ei löytynyt; rivin tunnus on sen paikka tiedostossa</translation>
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
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ei voi avata: %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>uusi sarake "%1"</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>eroavat vain isojen ja pienten kirjainten osalta: %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>jos sen merkistö on toinen, ilmoita se valitsimella --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>"%1"</translation>
    </message>
</context>
</TS>
