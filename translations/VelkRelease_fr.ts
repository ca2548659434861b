<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkRelease</name>
    <message>
        <source>%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung</source>
        <translation>%1 se trouve hors du catalogue et n'est pas écrit ; corrigez « path » dans le descripteur, ou supprimez le lien</translation>
    </message>
    <message>
        <source>%1 mit Dezimalkomma</source>
        <translation>%1 à virgule décimale</translation>
    </message>
    <message>
        <source>%1: das ist Teil %2 einer anderen Arbeit als %3</source>
        <translation>%1 : c'est la partie %2 d'un autre travail que %3</translation>
    </message>
    <message>
        <source>Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile %1, Spalte %2</source>
        <translation>les guillemets à l'intérieur des cellules comptent comme des caractères, d'abord ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>date</translation>
    </message>
    <message>
        <source>Datum mit Uhrzeit</source>
        <translation>date et heure</translation>
    </message>
    <message>
        <source>Entscheidungen übernommen aus %1: %2</source>
        <translation>Décisions reprises de %1 : %2</translation>
    </message>
    <message>
        <source>Projekte in den Teilen: %1 (verschiedene: %2), in der ganzen Arbeit: %3</source>
        <translation>projets dans les parties : %1 (différents : %2), dans tout le travail : %3</translation>
    </message>
    <message>
        <source>Teil %1 fehlt</source>
        <translation>la partie %1 manque</translation>
    </message>
    <message>
        <source>Teil %1 ist mehrfach da (%2): %3</source>
        <translation>la partie %1 est là plusieurs fois (%2) : %3</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>Topologie (%1)</source>
        <translation>topologie (%1)</translation>
    </message>
    <message>
        <source>Wahrheitswert</source>
        <translation>valeur logique</translation>
    </message>
    <message>
        <source>Wertebereich (%1)</source>
        <translation>plage de valeurs (%1)</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>berechnet (%1)</source>
        <translation>calculé (%1)</translation>
    </message>
    <message>
        <source>das Verzeichnis ist nicht lesbar</source>
        <translation>le répertoire n'est pas lisible</translation>
    </message>
    <message>
        <source>das Verzeichnis lässt sich nicht anlegen</source>
        <translation>le répertoire ne peut pas être créé</translation>
    </message>
    <message>
        <source>das ist kein Teil, den velkmap assign --shard geschrieben hat</source>
        <translation>ce n'est pas une partie écrite par velkmap assign --shard</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message numerus="yes">
        <source>der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)</source>
        <translation>
            <numerusform>la clé « %1 » manque ou se répète dans %2 des %Ln lignes</numerusform>
            <numerusform>la clé « %1 » manque ou se répète dans %2 des %Ln lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>die Bedingung „%1“ von %2 ist nicht lesbar; was zugeordnet wurde, ist nicht sicher</source>
        <translation>la condition « %1 » de %2 ne se lit pas ; ce qui a été affecté n'est pas sûr</translation>
    </message>
    <message>
        <source>die Spalte %1 hat keinen Namen und heißt jetzt „%2“</source>
        <translation>la colonne %1 n'a pas de nom et s'appelle maintenant « %2 »</translation>
    </message>
    <message>
        <source>die Spalte %1 trägt noch einmal den Namen „%2“ und heißt jetzt „%3“</source>
        <translation>la colonne %1 porte encore une fois le nom « %2 » et s'appelle maintenant « %3 »</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist laut Deskriptor: %2; ihre Zellen sehen aus wie: %3</source>
        <translation>la colonne « %1 » est, selon le descripteur : %2 ; ses cellules ressemblent à : %3</translation>
    </message>
    <message>
        <source>die Spalte „%1“ ist weggefallen</source>
        <translation>la colonne « %1 » a disparu</translation>
    </message>
    <message>
        <source>die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu zu beginnen</source>
        <translation>la table de l'importation précédente n'est pas lisible, ses identifiants de lignes ne pourraient pas être conservés ; corrigez-la, ou supprimez-la pour recommencer</translation>
    </message>
    <message>
        <source>die Tabelle der Dokumente hat keine Spalte %1</source>
        <translation>la table des documents n'a pas de colonne %1</translation>
    </message>
    <message>
        <source>die Tabelle des Projekts ist nicht lesbar</source>
        <translation>la table du projet n'est pas lisible</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; die Zeilen des Projekts bleiben, wie sie sind</source>
        <translation>la table de %1 n'est pas lisible ; les lignes du projet restent telles quelles</translation>
    </message>
    <message>
        <source>die Tabelle von %1 ist nicht lesbar; was ohne sie zugeordnet wurde, ist nicht sicher</source>
        <translation>la table de %1 n'est pas lisible ; ce qui a été affecté sans elle n'est pas sûr</translation>
    </message>
    <message>
        <source>die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>la ligne se termine par un seul retour chariot ; enregistrez le fichier avec des sauts de ligne</translation>
    </message>
    <message>
        <source>die Zellen sind durch Semikolons getrennt</source>
        <translation>les cellules sont séparées par des points-virgules</translation>
    </message>
    <message>
        <source>die Zellen sind durch Tabulatoren getrennt</source>
        <translation>les cellules sont séparées par des tabulations</translation>
    </message>
    <message>
        <source>die einzige Spalte heißt „%1“; wenn es mehrere sind, nennen Sie ihr Trennzeichen mit --separator</source>
        <translation>la seule colonne s'appelle « %1 » ; s'il y en a plusieurs, indiquez leur séparateur par --separator</translation>
    </message>
    <message>
        <source>die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also eine Zeile mit Namen davor</source>
        <translation>la première ligne ressemble à des données ; elle sert de noms de colonnes, placez donc une ligne de noms avant elle</translation>
    </message>
    <message>
        <source>diesen Katalog gibt es nicht</source>
        <translation>ce catalogue n'existe pas</translation>
    </message>
    <message>
        <source>ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um</source>
        <translation>donnerait la même table que %1 ; renommez l'une des deux</translation>
    </message>
    <message>
        <source>es gibt keine Spalte „%1“</source>
        <translation>il n'y a pas de colonne « %1 »</translation>
    </message>
    <message>
        <source>es gibt keinen Teil</source>
        <translation>il n'y a aucune partie</translation>
    </message>
    <message>
        <source>es sind nicht so viele Projekte darin, wie er nennt</source>
        <translation>elle ne contient pas autant de projets qu'elle en annonce</translation>
    </message>
    <message>
        <source>ganze Zahl</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>gelesen als %1</source>
        <translation>lu en %1</translation>
    </message>
    <message>
        <source>intern (%1)</source>
        <translation>interne (%1)</translation>
    </message>
    <message>
        <source>kein Projekt hat ein Datum</source>
        <translation>aucun projet n'a de date</translation>
    </message>
    <message>
        <source>keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei</source>
        <translation>aucune colonne clé trouvée ; l'identifiant d'une ligne est sa place dans le fichier</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>lässt sich nicht schreiben: %1</source>
        <translation>ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ne peut pas être ouvert : %1</translation>
    </message>
    <message>
        <source>neue Spalte „%1“</source>
        <translation>nouvelle colonne « %1 »</translation>
    </message>
    <message>
        <source>nur in der Groß- und Kleinschreibung verschieden: %1</source>
        <translation>ne diffèrent que par la casse : %1</translation>
    </message>
    <message>
        <source>wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding</source>
        <translation>s'il est codé autrement, indiquez le codage par --encoding</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>« %1 »</translation>
    </message>
</context>
</TS>
