<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkGeomCore</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Ligne %1</translation>
    </message>
    <message>
        <source>"%1" ist keine Adresse einer Linkdatenbank. Möglich sind sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.</source>
        <translation>"%1" n'est pas l'adresse d'une base de liens. Possibles : sqlite:FICHIER et postgresql://UTILISATEUR@HÔTE:PORT/BASE.</translation>
    </message>
    <message>
        <source>%1 darf nicht mehr „supports“ als „cases“ haben</source>
        <translation>%1 ne doit pas avoir plus de « supports » que de « cases »</translation>
    </message>
    <message>
        <source>%1 darf nur Objekte enthalten</source>
        <translation>%1 ne doit contenir que des objets</translation>
    </message>
    <message>
        <source>%1 enthält zu tief verschachtelte Werte</source>
        <translation>%1 contient des valeurs imbriquées trop profondément</translation>
    </message>
    <message>
        <source>%1 gibt es in Revision %2 nicht</source>
        <translation>%1 n'existe pas dans la révision %2</translation>
    </message>
    <message>
        <source>%1 hat einen leeren Eintrag „sourcePath“</source>
        <translation>%1 a une entrée « sourcePath » vide</translation>
    </message>
    <message>
        <source>%1 hat keinen Eintrag „%2“</source>
        <translation>%1 n'a pas d'entrée « %2 »</translation>
    </message>
    <message>
        <source>%1 ist die Datenbank eines anderen Programms</source>
        <translation>%1 est la base de données d'un autre programme</translation>
    </message>
    <message>
        <source>%1 ist kein Suchindex und kann nicht ersetzt werden</source>
        <translation>%1 n'est pas un index de recherche et ne peut pas être remplacé</translation>
    </message>
    <message>
        <source>%1 muss [Quellzeile, Zielzeile, Zustand] sein, dann der erweiterte Text, wenn es einen gibt, dann true für einen Konflikt; Zeilen zählen ab 0, -1 ist keine Zielzeile</source>
        <translation>%1 doit être [ligne source, ligne cible, état], puis le texte étendu s'il y en a un, puis true en cas de conflit ; les lignes comptent à partir de 0, -1 signifie aucune ligne cible</translation>
    </message>
    <message>
        <source>%1 muss ein Objekt sein</source>
        <translation>%1 doit être un objet</translation>
    </message>
    <message>
        <source>%1 muss ein Text sein</source>
        <translation>%1 doit être un texte</translation>
    </message>
    <message>
        <source>%1 muss eine Liste sein</source>
        <translation>%1 doit être une liste</translation>
    </message>
    <message>
        <source>%1 muss eine Variable nennen, dazu Texte als „before“ und „after“ oder Dezimalzahlen als „factor“ und „offset“</source>
        <translation>%1 doit nommer une variable, et des textes « before » et « after » ou des nombres décimaux « factor » et « offset »</translation>
    </message>
    <message>
        <source>%1 muss eine ganze Zahl von 0 bis 2147483647 sein</source>
        <translation>%1 doit être un entier de 0 à 2147483647</translation>
    </message>
    <message>
        <source>%1 muss true oder false sein</source>
        <translation>%1 doit être true ou false</translation>
    </message>
    <message>
        <source>%1 muss von der Art „var“ mit „source“ und „target“ oder von der Art „value“ mit „formula“ sein</source>
        <translation>%1 doit être du genre « var » avec « source » et « target », ou du genre « value » avec « formula »</translation>
    </message>
    <message>
        <source>%1 nennt die Quellzeile %2 noch einmal</source>
        <translation>%1 nomme encore une fois la ligne source %2</translation>
    </message>
    <message>
        <source>%1. Gelesen wird Revision %2, soweit sie auf dieser Maschine liegt.</source>
        <translation>%1. La révision %2 est lue dans la mesure où elle se trouve sur cette machine.</translation>
    </message>
    <message>
        <source>%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer Wiederholung nachsehen.</source>
        <translation>%1. Il n'est pas certain que les modifications soient validées : vérifier avant de recommencer.</translation>
    </message>
    <message>
        <source>%1: das Ziel mit leerem „path“ steht jetzt am Ende</source>
        <translation>%1 : la cible au « path » vide se trouve maintenant à la fin</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zelle(n) statt %1 wie in der Kopfzeile</source>
        <translation>
            <numerusform>%Ln cellule au lieu de %1 comme dans l'en-tête</numerusform>
            <numerusform>%Ln cellules au lieu de %1 comme dans l'en-tête</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere</source>
        <translation>
            <numerusform>%Ln autre</numerusform>
            <numerusform>%Ln autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere(r) Fehler</source>
        <translation>
            <numerusform>%Ln autre erreur</numerusform>
            <numerusform>%Ln autres erreurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Alle Werte hintereinander als ein Text.</source>
        <translation>All values one after the other as one text.</translation>
    </message>
    <message>
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>D'autres valeurs des plages appartiennent à une autre cible.</translation>
    </message>
    <message>
        <source>Anfang, Ende und Schrittweite von „%1“ müssen Zahlen mit höchstens 15 Ziffern sein</source>
        <translation>début, fin et pas de « %1 » doivent être des nombres d'au plus 15 chiffres</translation>
    </message>
    <message>
        <source>Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.
  Projekt: %1
  Zeile: %2</source>
        <translation>Un autre projet cible contient aussi une ligne avec ces valeurs.
  Projet : %1
  Ligne : %2</translation>
    </message>
    <message>
        <source>Das Programm %1 für das Katalog-Repository kann nicht gestartet werden: %2</source>
        <translation>Le programme %1 pour le dépôt du catalogue ne peut pas être lancé : %2</translation>
    </message>
    <message>
        <source>Das Repository %1 antwortet nicht: %2</source>
        <translation>Le dépôt %1 ne répond pas : %2</translation>
    </message>
    <message>
        <source>Das Repository %1 verlangt eine Anmeldung: %2</source>
        <translation>Le dépôt %1 demande une connexion : %2</translation>
    </message>
    <message>
        <source>Das Skript lässt sich nicht lesen: %1</source>
        <translation>Le script ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten</source>
        <translation>Le script a été arrêté</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher</source>
        <translation>Le script a été arrêté : il lui fallait plus de %1 Mo de mémoire</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es brauchte mehr als %1 s</source>
        <translation>Le script a été arrêté : il a pris plus de %1 s</translation>
    </message>
    <message>
        <source>Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf</source>
        <translation>Le script a été arrêté : pendant %1 s, il n'a appelé aucun objet</translation>
    </message>
    <message>
        <source>Das Zielprojekt heißt anders als das Quellprojekt, und keine Zuordnung dorthin ist bestätigt.
  Quellprojekt: %1
  Zielprojekt: %2</source>
        <translation>Le projet cible porte un autre nom que le projet source, et aucune affectation vers lui n'est confirmée.
  Projet source : %1
  Projet cible : %2</translation>
    </message>
    <message>
        <source>Dem Text fehlt das schließende Hochkomma</source>
        <translation>Il manque l'apostrophe fermante du texte</translation>
    </message>
    <message>
        <source>Der Ausdruck ist zu tief verschachtelt</source>
        <translation>L'expression est imbriquée trop profondément</translation>
    </message>
    <message>
        <source>Der Betrag: die Zahl ohne Vorzeichen.</source>
        <translation>The absolute value: the number without its sign.</translation>
    </message>
    <message>
        <source>Der Katalog %1 passt nicht in den Zwischenspeicher von %2 MB; die Suche kennt ihn nicht</source>
        <translation>Le catalogue %1 ne tient pas dans le cache de %2 Mo ; la recherche ne le connaît pas</translation>
    </message>
    <message>
        <source>Der Katalogstand</source>
        <translation>La version du catalogue</translation>
    </message>
    <message>
        <source>Der Katalogstand nennt „%1“ als sein sourceDate.</source>
        <translation>La version du catalogue indique « %1 » comme sourceDate.</translation>
    </message>
    <message>
        <source>Der Kosinus eines Winkels in Grad.</source>
        <translation>The cosine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Logarithmus zur Basis 10.</source>
        <translation>The logarithm to base 10.</translation>
    </message>
    <message>
        <source>Der Rest der Teilung, mit dem Vorzeichen der ersten Zahl.</source>
        <translation>The remainder of the division, with the sign of the first number.</translation>
    </message>
    <message>
        <source>Der Sinus eines Winkels in Grad.</source>
        <translation>The sine of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Tangens eines Winkels in Grad.</source>
        <translation>The tangent of an angle in degrees.</translation>
    </message>
    <message>
        <source>Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen Zeichen; ohne Anzahl alles bis zum Ende.</source>
        <translation>The part of the text from the start, counted from 1, with so many characters; without a count all up to the end.</translation>
    </message>
    <message>
        <source>Der Text in großen Buchstaben.</source>
        <translation>The text in capital letters.</translation>
    </message>
    <message>
        <source>Der Text in kleinen Buchstaben.</source>
        <translation>The text in small letters.</translation>
    </message>
    <message>
        <source>Der Text ist leer</source>
        <translation>Le texte est vide</translation>
    </message>
    <message>
        <source>Der Text ohne Leerzeichen am Anfang und am Ende.</source>
        <translation>The text without blanks at its start and end.</translation>
    </message>
    <message>
        <source>Der Text, in dem der Ersatz überall steht, wo der gesuchte Text stand.</source>
        <translation>The text with the replacement wherever the text looked for was.</translation>
    </message>
    <message>
        <source>Der Treiber %1 für die Linkdatenbank fehlt</source>
        <translation>Le pilote %1 de la base de liens manque</translation>
    </message>
    <message>
        <source>Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; ohne Stellen so, wie sie ist.</source>
        <translation>The value as a text, a number with so many decimals; without decimals as it is.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad zwischen der x-Achse und der Strecke vom Nullpunkt zum Punkt (x, y).</source>
        <translation>The angle in degrees between the x axis and the line from the origin to the point (x, y).</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Kosinus hat.</source>
        <translation>The angle in degrees that has this cosine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Sinus hat.</source>
        <translation>The angle in degrees that has this sine.</translation>
    </message>
    <message>
        <source>Der Winkel in Grad, der diesen Tangens hat.</source>
        <translation>The angle in degrees that has this tangent.</translation>
    </message>
    <message>
        <source>Der natürliche Logarithmus.</source>
        <translation>The natural logarithm.</translation>
    </message>
    <message>
        <source>Der zweite Wert, wenn der Vergleich gilt, sonst der dritte.</source>
        <translation>The second value if the comparison holds, else the third.</translation>
    </message>
    <message>
        <source>Die Anweisung enthält ein Nullzeichen</source>
        <translation>L'instruction contient un caractère nul</translation>
    </message>
    <message>
        <source>Die Anzahl der Zeichen des Textes.</source>
        <translation>The number of characters of the text.</translation>
    </message>
    <message>
        <source>Die Ausgabe lässt sich nicht schreiben: %1</source>
        <translation>La sortie ne peut pas être écrite : %1</translation>
    </message>
    <message>
        <source>Die Datei hat sich geändert, während sie gelesen wurde.</source>
        <translation>Le fichier a changé pendant sa lecture.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La fonction %1 est inconnue</translation>
    </message>
    <message>
        <source>Die Gruppe "%1" gibt es in der Linkdatenbank nicht, oder %2 gehört nicht zu ihr</source>
        <translation>Le groupe "%1" n'existe pas dans la base de liens, ou %2 n'en fait pas partie</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 antwortet nicht, die Verbindung zu ihr ist aufgegeben</source>
        <translation>La base de liens %1 ne répond pas, la connexion est abandonnée</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 gibt es nicht</source>
        <translation>La base de liens %1 n'existe pas</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 hat die Form %2, dieses Programm kennt nur die Form %3; es braucht eine neuere Fassung</source>
        <translation>La base de liens %1 est de la forme %2, ce programme ne connaît que la forme %3 ; il faut une version plus récente</translation>
    </message>
    <message>
        <source>Die Linkdatenbank %1 kann nicht geöffnet werden: %2</source>
        <translation>La base de liens %1 ne peut pas être ouverte : %2</translation>
    </message>
    <message>
        <source>Die Linkdatenbank arbeitet</source>
        <translation>La base de liens travaille</translation>
    </message>
    <message>
        <source>Die Normbezeichnungen sind verschieden.
  Alte Normbezeichnung: %1
  Neue Normbezeichnung: %2</source>
        <translation>Les désignations de norme diffèrent.
  Ancienne désignation : %1
  Nouvelle désignation : %2</translation>
    </message>
    <message>
        <source>Die Quadratwurzel; kein Wert für negative Zahlen.</source>
        <translation>The square root; no value for negative numbers.</translation>
    </message>
    <message>
        <source>Die Stelle, von 1 an, an der der gesuchte Text im Text zum ersten Mal steht; 0, wenn er nicht darin steht.</source>
        <translation>The place, counted from 1, at which the text looked for first stands in the text; 0 if it does not.</translation>
    </message>
    <message>
        <source>Die Tabelle %1 gibt es in der Linkdatenbank nicht</source>
        <translation>La table %1 n'existe pas dans la base de liens</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>La table du projet cible n'a pas pu être lue.
  Projet : %1</translation>
    </message>
    <message>
        <source>Die Tabellen der Linkdatenbank %1 können nicht angelegt oder auf den neuesten Stand gebracht werden: %2</source>
        <translation>Les tables de la base de liens %1 ne peuvent pas être créées ou mises à jour : %2</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variable %1 n'existe pas dans la table cible</translation>
    </message>
    <message>
        <source>Die Variable %1 ist nicht bekannt</source>
        <translation>La variable %1 est inconnue</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 besteht wieder</source>
        <translation>La connexion à la base de liens %1 est rétablie</translation>
    </message>
    <message>
        <source>Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2</source>
        <translation>La connexion à la base de liens %1 est interrompue : %2</translation>
    </message>
    <message>
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Les valeurs de la variable %1 diffèrent.
  Ancienne valeur : %2
  Nouvelle valeur : %3</translation>
    </message>
    <message>
        <source>Die Zahl e, hoch der Zahl.</source>
        <translation>The number e to the power of the number.</translation>
    </message>
    <message>
        <source>Die Zahl ohne ihre Nachkommastellen.</source>
        <translation>The number without its decimals.</translation>
    </message>
    <message>
        <source>Die Zahl, als die sich der Text liest; kein Wert, wenn er keine ist.</source>
        <translation>The number that the text reads as; no value if it is none.</translation>
    </message>
    <message>
        <source>Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine ganze Zahl, mit negativen vor dem Komma.</source>
        <translation>The number, rounded to that many decimals; without decimals to a whole number, with negative ones before the decimal point.</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>La ligne cible est déjà confirmée pour une autre ligne.</translation>
    </message>
    <message>
        <source>Die gelöschte Zeile %1 steht nicht mehr im Protokoll der Linkdatenbank; sie ist wohl schon wiederhergestellt</source>
        <translation>La ligne supprimée %1 n'est plus dans le journal de la base de liens ; elle a sans doute déjà été restaurée</translation>
    </message>
    <message>
        <source>Die größte der Zahlen.</source>
        <translation>The largest of the numbers.</translation>
    </message>
    <message>
        <source>Die kleinste der Zahlen.</source>
        <translation>The smallest of the numbers.</translation>
    </message>
    <message>
        <source>Die meisten Zeilen haben im Zielprojekt andere Werte.
  Zielprojekt: %1</source>
        <translation>La plupart des lignes ont d'autres valeurs dans le projet cible.
  Projet cible : %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile gibt es in der Zieltabelle nicht.
  Projekt: %1
  Zeile: %2</source>
        <translation>La ligne affectée n'existe pas dans la table cible.
  Projet : %1
  Ligne : %2</translation>
    </message>
    <message>
        <source>Die Änderungen sind mit der Verbindung zur Linkdatenbank verloren gegangen; sie sind zu wiederholen</source>
        <translation>Les modifications ont été perdues avec la connexion à la base de liens ; il faut les refaire</translation>
    </message>
    <message>
        <source>ERP-Nummer</source>
        <translation>Numéro ERP</translation>
    </message>
    <message numerus="yes">
        <source>Ein Text in der Formel für %1 wird länger als %Ln Zeichen und bleibt ohne Wert</source>
        <translation>
            <numerusform>Un texte de la formule pour %1 dépasse %Ln caractère et reste sans valeur</numerusform>
            <numerusform>Un texte de la formule pour %1 dépasse %Ln caractères et reste sans valeur</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein anderes Skript läuft noch</source>
        <translation>Un autre script est encore en cours</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Une condition du projet cible n'est pas remplie.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung eines Zielprojekts ist fehlerhaft.
  %1</source>
        <translation>Une condition d'un projet cible est erronée.
  %1</translation>
    </message>
    <message>
        <source>Eine Bedingung muss ein Vergleich sein</source>
        <translation>Une condition doit être une comparaison</translation>
    </message>
    <message>
        <source>Eine Formel muss einer Variablen einen Wert zuweisen</source>
        <translation>Une formule doit affecter une valeur à une variable</translation>
    </message>
    <message>
        <source>Eine Mapping-Datei muss ein Objekt enthalten.</source>
        <translation>Un fichier de mapping doit contenir un objet.</translation>
    </message>
    <message>
        <source>Er steht zwischen zwei Katalogständen desselben Datums.</source>
        <translation>Elle se trouve entre deux versions du catalogue de même date.</translation>
    </message>
    <message>
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1 attendu, %2 trouvé</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Une affectation à la variable %1 est attendue</translation>
    </message>
    <message>
        <source>Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den Einstellungen gewählt.</source>
        <translation>Il n'y a pas de connexion à une base de liens. Elle se choisit dans les paramètres.</translation>
    </message>
    <message>
        <source>Es ist keine Linkdatenbank verbunden.</source>
        <translation>Aucune base de données de liens n'est connectée.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Nombre d'arguments incorrect pour la fonction %1</translation>
    </message>
    <message>
        <source>Fehler der Linkdatenbank: %1</source>
        <translation>Erreur de la base de liens : %1</translation>
    </message>
    <message>
        <source>Für den Katalog "%1" ist kein Repository eingestellt; aus seinem Namen wird keine Adresse</source>
        <translation>Aucun dépôt n'est défini pour le catalogue "%1" ; son nom ne donne pas d'adresse</translation>
    </message>
    <message>
        <source>Hier wird ein Vergleich erwartet, kein Wert</source>
        <translation>Une comparaison est attendue ici, pas une valeur</translation>
    </message>
    <message>
        <source>Hier wird ein Wert erwartet, kein Vergleich</source>
        <translation>Une valeur est attendue ici, pas une comparaison</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht ein Byte mit dem Wert 0.</source>
        <translation>Un octet de valeur 0 suit le document.</translation>
    </message>
    <message>
        <source>In %1 ist keine Linkdatenbank, oder eine älterer Form. Sie wird beim ersten Schreiben angelegt oder erneuert.</source>
        <translation>Il n'y a pas de base de liens dans %1, ou une d'une forme plus ancienne. Elle sera créée ou renouvelée à la première écriture.</translation>
    </message>
    <message>
        <source>In der Adresse der Linkdatenbank steht ein Kennwort. Es gehört in die Kennwortdatei oder in PGPASSWORD.</source>
        <translation>L'adresse de la base de liens contient un mot de passe. Sa place est dans le fichier des mots de passe ou dans PGPASSWORD.</translation>
    </message>
    <message>
        <source>Keine Antwort von %1 in %2 s</source>
        <translation>Aucune réponse de %1 en %2 s</translation>
    </message>
    <message>
        <source>Keine Zeile der Ziele passt zu dieser.</source>
        <translation>Aucune ligne des cibles ne correspond à celle-ci.</translation>
    </message>
    <message>
        <source>Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).</source>
        <translation>Les modifications non validées sont perdues (instructions : %1).</translation>
    </message>
    <message>
        <source>Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Identique seulement grâce à des conditions ou des correspondances de variables proposées. Elles valent dès qu’une ligne de la cible est confirmée.</translation>
    </message>
    <message>
        <source>Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein Vergleich stehen kann.</source>
        <translation>Whether there is a value: an empty cell has none. Stands where a comparison can stand.</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>La source et la cible n'ont aucune variable commune ayant une valeur.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>Text hinter dem schließenden Anführungszeichen einer Zelle</source>
        <translation>du texte derrière le guillemet fermant d'une cellule</translation>
    </message>
    <message>
        <source>Text, Anfang, Anzahl</source>
        <translation>texte, début, longueur</translation>
    </message>
    <message>
        <source>Text, Gesuchtes</source>
        <translation>texte, recherché</translation>
    </message>
    <message>
        <source>Text, Gesuchtes, Ersatz</source>
        <translation>texte, recherché, remplacement</translation>
    </message>
    <message>
        <source>Vergleich, dann, sonst</source>
        <translation>comparaison, alors, sinon</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Quelltabelle haben diese Werte.</source>
        <translation>D'autres lignes de la table source ont ces valeurs.</translation>
    </message>
    <message>
        <source>Weitere Zeilen der Zieltabelle haben diese Werte.</source>
        <translation>D'autres lignes de la table cible ont ces valeurs.</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>Wert, Stellen</source>
        <translation>valeur, décimales</translation>
    </message>
    <message>
        <source>Wert, Wert, ...</source>
        <translation>valeur, valeur, ...</translation>
    </message>
    <message>
        <source>Werte sind zu tief verschachtelt.</source>
        <translation>Des valeurs sont imbriquées trop profondément.</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>angle</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Zahl, Stellen</source>
        <translation>nombre, décimales</translation>
    </message>
    <message>
        <source>Zahl, Teiler</source>
        <translation>nombre, diviseur</translation>
    </message>
    <message>
        <source>Zahl, Zahl, ...</source>
        <translation>nombre, nombre, ...</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Caractère %1 : %2</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Zeile %1, Zeichen %2: %3</source>
        <translation>Ligne %1, caractère %2 : %3</translation>
    </message>
    <message>
        <source>Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle zu vergleichen.</source>
        <translation>Trop de plages de valeurs de la table cible se chevauchent pour toutes les comparer.</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Trop peu de valeurs de la ligne ont un équivalent dans la table cible.
  Sans équivalent : %1</translation>
    </message>
    <message>
        <source>das Dezimalzeichen ist „.“ oder „,“</source>
        <translation>le caractère décimal est « . » ou « , »</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>la fin</translation>
    </message>
    <message>
        <source>das Feld hat keinen Namen</source>
        <translation>le champ n'a pas de nom</translation>
    </message>
    <message>
        <source>das Feld „%1“ gibt es zweimal</source>
        <translation>le champ « %1 » figure deux fois</translation>
    </message>
    <message>
        <source>das Projekt hat keine Tabelle; sein Lexem SACHM muss eine nennen</source>
        <translation>le projet n'a pas de tableau ; son lexème SACHM doit en nommer un</translation>
    </message>
    <message>
        <source>das Projekt wurde nicht gelesen</source>
        <translation>le projet n'a pas été lu</translation>
    </message>
    <message>
        <source>das berechnete Feld „%1“ hat keine Formel</source>
        <translation>le champ calculé « %1 » n'a pas de formule</translation>
    </message>
    <message>
        <source>das ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>c'est une adresse ; seuls les fichiers sont lus</translation>
    </message>
    <message>
        <source>der Deskriptor hat ein lineSubIdField ohne lineIdField</source>
        <translation>le descripteur a un lineSubIdField sans lineIdField</translation>
    </message>
    <message>
        <source>der Eintrag „%1“ steht zweimal da</source>
        <translation>l'entrée « %1 » figure deux fois</translation>
    </message>
    <message>
        <source>der Name der Datei enthält ein NUL-Zeichen</source>
        <translation>le nom du fichier contient un caractère NUL</translation>
    </message>
    <message numerus="yes">
        <source>der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen</source>
        <translation>
            <numerusform>la plage « %1 » de %2 a trop de valeurs (%3) ; seule %Ln est parcourue</numerusform>
            <numerusform>la plage « %1 » de %2 a trop de valeurs (%3) ; seules %Ln sont parcourues</numerusform>
        </translation>
    </message>
    <message>
        <source>die Anführungszeichen der Zelle passen nicht zueinander</source>
        <translation>les guillemets de la cellule ne vont pas par paires</translation>
    </message>
    <message>
        <source>die Bedingung hat keinen Namen</source>
        <translation>la condition n'a pas de nom</translation>
    </message>
    <message>
        <source>die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8</source>
        <translation>les octets ne sont pas de l'UTF-8 ; enregistrez le fichier en UTF-8</translation>
    </message>
    <message>
        <source>die Datei ist leer; ihre erste Zeile muss die Spalten nennen</source>
        <translation>le fichier est vide ; sa première ligne doit nommer les colonnes</translation>
    </message>
    <message>
        <source>die Filterbedingung „%1“ ist nicht lesbar: %2</source>
        <translation>la condition de filtre « %1 » ne se lit pas : %2</translation>
    </message>
    <message>
        <source>die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2</source>
        <translation>la formule de la colonne calculée « %1 » ne se lit pas : %2</translation>
    </message>
    <message>
        <source>die Schrittweite von „%1“ ist nicht größer als 0</source>
        <translation>le pas de « %1 » n'est pas supérieur à 0</translation>
    </message>
    <message>
        <source>die Spalte hat keinen Namen</source>
        <translation>la colonne n'a pas de nom</translation>
    </message>
    <message>
        <source>die Spalte „%1“ aus dem Deskriptor fehlt</source>
        <translation>la colonne « %1 » du descripteur manque</translation>
    </message>
    <message>
        <source>die Spalte „%1“ fehlt, die %2 im Deskriptor nennt</source>
        <translation>la colonne « %1 » que nomme %2 dans le descripteur manque</translation>
    </message>
    <message>
        <source>die Spalte „%1“ gibt es zweimal</source>
        <translation>la colonne « %1 » figure deux fois</translation>
    </message>
    <message>
        <source>die Sperrdatei daneben lässt sich nicht schreiben</source>
        <translation>le fichier de verrou à côté ne peut pas être écrit</translation>
    </message>
    <message>
        <source>die Zahlen von „%1“ haben zu viele Ziffern</source>
        <translation>les nombres de « %1 » ont trop de chiffres</translation>
    </message>
    <message>
        <source>die Zeilennummer %1 hat schon Zeile %2</source>
        <translation>le numéro de ligne %1 est déjà celui de la ligne %2</translation>
    </message>
    <message>
        <source>diese berechneten Spalten brauchen einander: %1</source>
        <translation>ces colonnes calculées ont besoin les unes des autres : %1</translation>
    </message>
    <message>
        <source>ein Anführungszeichen in einer Zelle, die nicht mit einem beginnt; setzen Sie die ganze Zelle in Anführungszeichen und verdoppeln Sie die darin</source>
        <translation>un guillemet dans une cellule qui ne commence pas par un guillemet ; mettez toute la cellule entre guillemets et doublez ceux qu'elle contient</translation>
    </message>
    <message>
        <source>ein Anführungszeichen wird nicht geschlossen</source>
        <translation>un guillemet n'est pas fermé</translation>
    </message>
    <message>
        <source>ein Feld wird erwartet, also ein Objekt</source>
        <translation>un champ est attendu, donc un objet</translation>
    </message>
    <message>
        <source>ein Objekt mit Texten wird erwartet</source>
        <translation>un objet de textes est attendu</translation>
    </message>
    <message>
        <source>ein Objekt mit einem Eintrag für jede Sprache wird erwartet</source>
        <translation>un objet avec une entrée pour chaque langue est attendu</translation>
    </message>
    <message>
        <source>ein Objekt wird erwartet</source>
        <translation>un objet est attendu</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un opérateur ou la fin</translation>
    </message>
    <message>
        <source>ein Text wird erwartet</source>
        <translation>un texte est attendu</translation>
    </message>
    <message>
        <source>ein Variablenname</source>
        <translation>un nom de variable</translation>
    </message>
    <message>
        <source>ein Wert</source>
        <translation>une valeur</translation>
    </message>
    <message>
        <source>ein Wert zwischen den Semikolons ist leer</source>
        <translation>une valeur entre les points-virgules est vide</translation>
    </message>
    <message>
        <source>eine Bedingung wird erwartet, also ein Objekt</source>
        <translation>une condition est attendue, donc un objet</translation>
    </message>
    <message>
        <source>eine Liste von Bedingungen wird erwartet</source>
        <translation>une liste de conditions est attendue</translation>
    </message>
    <message>
        <source>eine Liste von Feldern wird erwartet</source>
        <translation>une liste de champs est attendue</translation>
    </message>
    <message>
        <source>eine Liste von Texten wird erwartet</source>
        <translation>une liste de textes est attendue</translation>
    </message>
    <message>
        <source>eine Zahl wird erwartet</source>
        <translation>un nombre est attendu</translation>
    </message>
    <message>
        <source>eine ganze Zahl von 0 bis 2147483647 wird erwartet</source>
        <translation>un entier de 0 à 2147483647 est attendu</translation>
    </message>
    <message>
        <source>eine schließende Klammer</source>
        <translation>une parenthèse fermante</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contient des erreurs !</translation>
    </message>
    <message>
        <source>ersetzt: %1</source>
        <translation>remplacé : %1</translation>
    </message>
    <message>
        <source>gesperrt von %1 auf %2 (Prozess %3)</source>
        <translation>verrouillé par %1 sur %2 (processus %3)</translation>
    </message>
    <message>
        <source>gleich: %1</source>
        <translation>identique : %1</translation>
    </message>
    <message>
        <source>kein Text in UTF-8</source>
        <translation>ce n'est pas un texte en UTF-8</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>kein gültiges JSON: %1</source>
        <translation>JSON non valide : %1</translation>
    </message>
    <message>
        <source>lässt sich nicht lesen: %1</source>
        <translation>ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>lässt sich nicht öffnen: %1</source>
        <translation>ne peut pas être ouvert : %1</translation>
    </message>
    <message>
        <source>mehr Zeilen, als eine Tabelle fassen kann</source>
        <translation>plus de lignes qu'un tableau ne peut en contenir</translation>
    </message>
    <message>
        <source>mehr als 64 Ebenen tief</source>
        <translation>plus de 64 niveaux de profondeur</translation>
    </message>
    <message>
        <source>ohne Gegenstück: %1</source>
        <translation>sans équivalent : %1</translation>
    </message>
    <message numerus="yes">
        <source>so in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>de même dans %Ln autre ligne</numerusform>
            <numerusform>de même dans %Ln autres lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>sslmode "%1" gibt es nicht; möglich sind: %2</source>
        <translation>sslmode "%1" n'existe pas ; possibles : %2</translation>
    </message>
    <message>
        <source>true oder false wird erwartet</source>
        <translation>true ou false est attendu</translation>
    </message>
    <message>
        <source>unbekannte Art „%1“; bekannt sind %2</source>
        <translation>genre inconnu « %1 » ; connus : %2</translation>
    </message>
    <message>
        <source>unbekannter Typ „%1“; bekannt sind %2</source>
        <translation>type inconnu « %1 » ; connus : %2</translation>
    </message>
    <message>
        <source>verschieden: %1</source>
        <translation>différent : %1</translation>
    </message>
    <message>
        <source>y, x</source>
        <translation>y, x</translation>
    </message>
    <message>
        <source>Änderungen werden in die Linkdatenbank geschrieben</source>
        <translation>Écriture des modifications dans la base de liens</translation>
    </message>
    <message>
        <source>ähnlich: %1</source>
        <translation>semblable : %1</translation>
    </message>
    <message>
        <source>„%1“ endet unter seinem Anfang</source>
        <translation>« %1 » finit au-dessous de son début</translation>
    </message>
    <message>
        <source>„%1“ hat keine Schrittweite; schreiben Sie es wie 10..50/5</source>
        <translation>« %1 » n'a pas de pas ; écrivez-le comme 10..50/5</translation>
    </message>
    <message>
        <source>„%1“ ist eine Adresse; nur Dateien werden gelesen</source>
        <translation>« %1 » est une adresse ; seuls les fichiers sont lus</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum; schreiben Sie es wie 2026-01-31T12:00:00Z</source>
        <translation>« %1 » n'est pas une date ; écrivez-la comme 2026-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>„%1“ ist kein Wertebereich von %2: %3</source>
        <translation>« %1 » n'est pas une plage de valeurs de %2 : %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein lesbares Verzeichnis</source>
        <translation>« %1 » n'est pas un répertoire lisible</translation>
    </message>
    <message>
        <source>„%1“ ist keine Zeilennummer, also keine ganze Zahl von 0 bis 2147483647</source>
        <translation>« %1 » n'est pas un numéro de ligne, c'est-à-dire un entier de 0 à 2147483647</translation>
    </message>
    <message>
        <source>„%1“ ist nicht beschreibbar</source>
        <translation>« %1 » n'est pas accessible en écriture</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>« %1 » se trouve hors des catalogues ; déplacez-le ou autorisez son répertoire</translation>
    </message>
    <message>
        <source>„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder erlauben Sie sein Verzeichnis</source>
        <translation>« %1 » se trouve hors de « %2 » ; déplacez-le ou autorisez son répertoire</translation>
    </message>
    <message>
        <source>„%1“ steht mehr als einmal da; der letzte Eintrag gilt.</source>
        <translation>« %1 » figure plus d'une fois ; la dernière entrée compte.</translation>
    </message>
</context>
</TS>
