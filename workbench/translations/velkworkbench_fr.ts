<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>Il n&apos;y a rien à modifier.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>Confirmer %Ln ligne ?</numerusform>
            <numerusform>Confirmer %Ln lignes ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Confirmer %Ln ligne comme retirée du catalogue ?</numerusform>
            <numerusform>Confirmer %Ln lignes comme retirées du catalogue ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>Annuler l&apos;affectation de %Ln ligne ?</numerusform>
            <numerusform>Annuler l&apos;affectation de %Ln lignes ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>Annuler l&apos;affectation de %Ln ligne et la confirmer comme retirée du catalogue ?</numerusform>
            <numerusform>Annuler l&apos;affectation de %Ln lignes et les confirmer comme retirées du catalogue ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln d&apos;entre elles est déjà confirmée.</numerusform>
            <numerusform>%Ln d&apos;entre elles sont déjà confirmées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln d&apos;entre elles perd son affectation de plages de valeurs.</numerusform>
            <numerusform>%Ln d&apos;entre elles perdent leurs affectations de plages de valeurs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln ligne sans cible reste non confirmée.</numerusform>
            <numerusform>%Ln lignes sans cible restent non confirmées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln ligne reste telle quelle.</numerusform>
            <numerusform>%Ln lignes restent telles quelles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln ligne en conflit n&apos;est pas modifiée.</numerusform>
            <numerusform>%Ln lignes en conflit ne sont pas modifiées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln ligne ne figure dans aucun projet cible.</numerusform>
            <numerusform>%Ln lignes ne figurent dans aucun projet cible.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln ligne confirmée.</numerusform>
            <numerusform>%Ln lignes confirmées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln ligne confirmée comme retirée du catalogue.</numerusform>
            <numerusform>%Ln lignes confirmées comme retirées du catalogue.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Affectation de %Ln ligne annulée.</numerusform>
            <numerusform>Affectation de %Ln lignes annulée.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Affectation de %Ln ligne annulée, confirmée comme retirée du catalogue.</numerusform>
            <numerusform>Affectation de %Ln lignes annulée, confirmées comme retirées du catalogue.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>aucun successeur</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nouvelle ligne</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Raison</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 déjà décidées ou sûres ici</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 sans ligne dans la nouvelle version</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 confirmées alors comme retirées</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 dans des projets absents ici</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 en conflit là-bas</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>Non reprises : %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>Il n&apos;y a rien à reprendre de %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>Le fichier ne contient aucun mapping depuis la version du catalogue %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>Ce fichier mène lui aussi à la version du catalogue %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Choisissez un mapping qui mène de la même ancienne version du catalogue à une nouvelle plus ancienne.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Reprise de %1 : confirmée là pour la version du catalogue %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Lecture du mapping antérieur</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>Rien ne peut être repris de %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Répertoire de la version du catalogue %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Recherche des projets cibles</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Reprise des décisions</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Interrompu, rien n&apos;a été repris</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Décisions reprises de %1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Reprises de %1 : %2 sur %Ln ligne confirmée, %3 affectées avec certitude, %4 proposées.</numerusform>
            <numerusform>Reprises de %1 : %2 sur %Ln lignes confirmées, %3 affectées avec certitude, %4 proposées.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Répertoire de l&apos;ancienne version du catalogue</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Répertoire de la nouvelle version du catalogue</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Répertoires des catalogues</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>Où se trouvent les deux versions du catalogue de ce fichier de mapping ? Les répertoires sont mémorisés avec le fichier.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Ancienne version (%1) :</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>&amp;Nouvelle version (%1) :</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Les deux répertoires sont nécessaires.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 n&apos;est pas un répertoire.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>%1 manque dans l&apos;ancienne version. Il faut indiquer le répertoire qui contient le catalogue %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>Le catalogue %1 manque dans la nouvelle version.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>La ligne %1 de %2 ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Aucune ligne n&apos;est en conflit</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Tous les conflits sont réglés ; enregistrez maintenant</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Conflit %1 sur %2, encore %3 à régler</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln ligne de %1 se contredit de la même manière. La décision vaut-elle pour toutes ?</numerusform>
            <numerusform>%Ln lignes de %1 se contredisent de la même manière. La décision vaut-elle pour toutes ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>La mienne : %1
L&apos;autre : %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Pour toutes</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Ligne par ligne</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>La ligne n&apos;est pas en conflit</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>Votre propre décision n&apos;est pas connue : la ligne était déjà en conflit à l&apos;ouverture</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Aucune ligne n&apos;est en conflit.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Tous les conflits sont réglés.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln autre ligne se contredit comme celle-ci.</numerusform>
            <numerusform>%Ln autres lignes se contredisent comme celle-ci.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflits</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Côtés du conflit</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>La mienne</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>L&apos;autre</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Décider à nouveau</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 sur %Ln conflit reste à régler.</numerusform>
            <numerusform>%1 sur %Ln conflits restent à régler.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>à régler</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>la mienne</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>l&apos;autre</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nouvelle</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Ma décision</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Décision de l&apos;autre</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Retenue</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>affectée automatiquement</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>à vérifier</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>confirmée</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>sans cible, ouverte</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmée comme retirée du catalogue</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, ligne %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projet cible</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Ligne cible</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Plages de valeurs</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Ancienne ligne</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Auparavant</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Ma décision</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Décision de l&apos;autre</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Élément</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>égal</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>remplacé comme dans %Ln autre ligne</numerusform>
            <numerusform>remplacé comme dans %Ln autres lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>semblable</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>différent</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>dans la nouvelle ligne seulement</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>dans l&apos;ancienne ligne seulement</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Ancien</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nouveau</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>La table ne contient pas la ligne.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Sans cible. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>La ligne affectée n&apos;est aucun des candidats.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Ancien et nouveau</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Candidats</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Confirmée.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Affectée avec certitude.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>comparées : les %1 premières</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Aucune différence commune.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>En commun : %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Lignes sélectionnées</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Version du catalogue</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>Le fichier contient plusieurs versions du catalogue. Laquelle faut-il ouvrir ?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Lecture du fichier de mapping</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>Le fichier est ouvert en lecture seule.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>Le verrou peut être levé s&apos;il est certain que plus personne n&apos;y travaille, par exemple après une panne de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Lecture seule</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>Leve&amp;r le verrou</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>Le verrou n&apos;a pas pu être levé.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>Les catalogues ne sont pas connus ; indiquez-les avec --source et --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Les modifications abandonnées sont perdues.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 : %Ln ligne</numerusform>
            <numerusform>%1 : %Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Encore %Ln ligne en conflit, dans ces projets :</numerusform>
            <numerusform>Encore %Ln lignes en conflit, dans ces projets :</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>Afficher les &amp;conflits</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Enregistrer &amp;quand même</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>Le fichier n&apos;a pas été enregistré.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>&amp;Fusionner les modifications</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Garder une copie et réécrire</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>Écrire ma &amp;version</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Les modifications des autres ont été reprises. Vérifiez-les, puis enregistrez encore une fois.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>Les modifications des autres n&apos;ont pas pu être reprises.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>Le fichier de mapping ne peut pas être créé.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>et %Ln de plus</numerusform>
            <numerusform>et %Ln de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>Le fichier de mapping %1 ne peut pas être lu (%2).
Choisissez un autre fichier ou rétablissez la copie de sauvegarde %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>Le fichier de mapping %1 ne peut pas être lu (%2).
Choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 ne contient aucune version.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 ne contient pas de version %2. Versions présentes : %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 est ouvert en lecture seule.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%1 est en cours de modification par %2 et n&apos;est donc ouvert qu&apos;en lecture seule.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>Le dossier de %1 n&apos;est pas accessible en écriture (%2). Le fichier est donc ouvert en lecture seule ; enregistré sous un autre nom, il peut être modifié.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>Il existe pour %1 du travail non enregistré. Il sera proposé dès que le fichier pourra être ouvert pour modification (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 a encore un autre nom (lien physique). À l&apos;enregistrement, le fichier de l&apos;autre nom reste tel qu&apos;il était.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Enregistrement de %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Sauvegarde de %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%1 est en cours de modification par %2. Rien n&apos;a été écrit. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>Rien ne peut être créé dans le dossier de %1 (%2). Rien n&apos;a été écrit. Choisissez un autre dossier.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Aucune ligne de ce projet n&apos;est dans le filtre.
Ouvrez « %1 » et choisissez « %2 » pour revoir toutes les lignes.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Aucun projet n&apos;a de ligne dans le filtre.
Ouvrez « %1 » et choisissez « %2 » pour revoir tous les projets.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Fichiers de mapping (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Ouvrir un fichier de mapping</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Enregistrer le fichier de mapping</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Enregistrer la table</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tables (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Choisir la copie commune</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Reprendre les décisions de</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>Le filtre est levé : le projet n’y a aucune ligne</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Fin atteinte, reprise depuis le début</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Début atteint, reprise depuis la fin</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>Il ne reste aucune ligne dans le filtre</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>texte remplacé</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>nombre converti</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Pourquoi ouverte</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Type de différence</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Différence dans la colonne</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Décidé en dernier par</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>personne</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(rien de cela)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>pas les valeurs choisies</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Lecture des tables...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>dans %Ln projet</numerusform>
            <numerusform>dans %Ln projets</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Aucun filtre : toutes les lignes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Tables illisibles : %Ln</numerusform>
            <numerusform>Tables illisibles : %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtre sur toutes les lignes</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Lever le filtre</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>reprises d&apos;un mapping antérieur</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 n&apos;est pas un fichier ordinaire et ne peut donc pas servir de verrou. Rien n&apos;a été écrit. Supprimez ce qui s&apos;y trouve.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>%1 est en cours d&apos;enregistrement par un autre programme. Rien n&apos;a été écrit. Enregistrez de nouveau dans un instant.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>Rien ne peut être créé dans le dossier de %1 (%2). Rien n&apos;a été écrit. Libérez de la place ou enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 ne peut pas être lu (%2). Rien n&apos;a été écrit. Enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 n&apos;est pas un fichier de mapping lisible (%2). Rien n&apos;a été écrit. À l&apos;enregistrement, le fichier existant est conservé sous un nom horodaté et un nouveau fichier est créé, qui ne contient que cette version.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 n&apos;est pas un fichier de mapping lisible (%2). Rien n&apos;a été écrit. À l&apos;enregistrement, le fichier existant est conservé sous un nom horodaté et un nouveau fichier est créé. Les autres versions proviennent de la sauvegarde %3 : %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 est illisible et n&apos;a pas pu être conservé sous %2 (%3). Rien n&apos;a été écrit. Enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 a été supprimé ou renommé depuis l&apos;ouverture. À l&apos;enregistrement, le fichier est recréé et ne contient que cette version (%2). Rien n&apos;a encore été écrit.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>%1 a été modifié par quelqu&apos;un d&apos;autre depuis l&apos;ouverture, mais pas cette version (%2). À l&apos;enregistrement, les autres versions restent telles qu&apos;elles sont maintenant dans le fichier. Rien n&apos;a encore été écrit.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>%1 a été modifié par quelqu&apos;un d&apos;autre depuis l&apos;ouverture, cette version (%2) aussi. À l&apos;enregistrement, ses modifications de cette version sont perdues. Rien n&apos;a encore été écrit : enregistrez quand même, enregistrez sous un autre nom ou rouvrez le fichier.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>Impossible d&apos;écrire dans %1 (%2). Rien n&apos;a été écrit. Vérifiez les droits d&apos;écriture ou enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 n&apos;a pas été enregistré : %2. Le fichier est inchangé, les modifications restent ouvertes. Libérez de la place et enregistrez de nouveau, ou enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>le fichier n&apos;a pas pu être écrit entièrement</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>le fichier écrit n&apos;est pas lisible (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>le fichier écrit ne contient pas ce qui devait être enregistré</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>la version %1 manque dans le fichier écrit, ou c&apos;en est une autre</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>La copie de sauvegarde %1 n&apos;a pas pu être créée (%2). Rien n&apos;a été écrit. Libérez de la place ou enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>%1 a été modifié par quelqu&apos;un d&apos;autre pendant l&apos;enregistrement. Rien n&apos;a été écrit. Enregistrez encore une fois.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 n&apos;a pas été enregistré : %2. Le fichier est inchangé, les modifications restent ouvertes. Enregistrez sous un autre nom.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Rechercher dans la page</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Historique des décisions...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Qui a décidé quoi, quand et pourquoi</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Raison de la décision...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Pour la dernière décision ou pour les lignes sélectionnées, par exemple pourquoi il n&apos;y a pas de successeur</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Ligne %1 dans %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln ligne dans %1</numerusform>
            <numerusform>%Ln lignes dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Raison notée : %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Historique des décisions</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Ligne sélectionnée</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Projet sélectionné</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Tous les projets</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Rechercher qui, projet, cible ou raison</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Enregistrer en CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Lignes illisibles du journal : %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Décisions : %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>Le fichier ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>aucun successeur</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (non enregistré)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Reprise de %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Dossier de fichiers CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Répertoire du catalogue</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importer des tables</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Dossier de fichiers CSV :</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Répertoire du catalogue :</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>Chaque fichier CSV devient un projet avec sa table, au même endroit dans le catalogue. Si les tables sont réimportées, les numéros des lignes sont conservés.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Le dossier des fichiers CSV manque.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Le répertoire du catalogue manque ; il est créé si le répertoire parent existe.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>L&apos;un des répertoires se trouve dans l&apos;autre.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Confirmer la ligne ou affecter la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Annuler l&apos;affectation de la ligne</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Annuler l&apos;affectation et confirmer comme retirée du catalogue</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Modifier l&apos;affectation de plages de valeurs</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Copier la condition tirée de la ligne</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Confirmer tout le projet</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Rechercher dans la table</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtre de colonne</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Copier les lignes</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Agrandir la table</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Réduire la table</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Table en taille normale</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Par défaut</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Aucune touche</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Commande ou touche</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Où</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Touche pour %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Les champs et les listes ont eux-mêmes besoin de la touche %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>La touche %1 appartiendrait à %2 et à %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Choisie par vous</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 n&apos;a alors plus la touche %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>La touche %1 appartient maintenant à %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Rien trouvé</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Confirmée : l&apos;affectation est décidée</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Proposition : doit être confirmée ou corrigée</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Sans image : manifestement égale, affectée par le programme</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>Aucune affectation trouvée</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Retirée du catalogue : il est confirmé qu&apos;il n&apos;y a pas d&apos;affectation</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Conflit avec la modification de quelqu&apos;un d&apos;autre</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>Le projet ou la table ne peut pas être lu</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Affectations de plages de valeurs de la ligne</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>Dans la table cible : la ligne affectée</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Condition copiée dans le presse-papiers</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>La condition copiée n&apos;est pas utilisable telle quelle : une valeur manque, est une plage ou contient un guillemet : %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Tout est traité dans ce filtre ; en dehors, %Ln ligne est encore ouverte.</numerusform>
            <numerusform>Tout est traité dans ce filtre ; en dehors, %Ln lignes sont encore ouvertes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Fin atteinte, reprise depuis le début</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Début atteint, reprise depuis la fin</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Conflit %1 sur %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Aucune ligne n&apos;est dans l&apos;un des états choisis</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Plus aucune ligne n&apos;attend de décision</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>Aucune des lignes ouvertes ne peut être affichée ; les tables manquent</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Numéro ou désignation normalisée :</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>Aucun projet n&apos;est sélectionné</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>Aucune ligne avec « %1 » dans ce projet</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Résultat %1 sur %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Exécuter</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Cette étape peut être annulée.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Il s&apos;agit des lignes sélectionnées.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Il s&apos;agit de toutes les lignes du projet.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtre : %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Aucun autre projet n’a de telles lignes</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Seules les lignes affichées du projet sont concernées : %1 sur %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Conflit</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Afficher seulement les lignes en conflit avec la modification de quelqu&apos;un d&apos;autre, et leurs projets</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Afficher seulement les lignes avec une proposition à confirmer ou à corriger, et leurs projets</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sans cible</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Afficher seulement les lignes pour lesquelles rien n&apos;a été trouvé, et leurs projets</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Afficher seulement les lignes manifestement égales, affectées par le programme, et leurs projets</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmée</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Afficher seulement les lignes dont l&apos;affectation est confirmée, et leurs projets</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Retirée du catalogue</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Afficher seulement les lignes confirmées comme retirées du catalogue, et leurs projets</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Utiliser une base de liens</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Fichier sur cet ordinateur</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Serveur PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>port habituel</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>Le mot de passe se trouve dans le fichier de mots de passe, dans le trousseau du bureau ou dans PGPASSWORD, ou bien il est saisi à la connexion. Il n&apos;est pas enregistré.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>si possible</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>toujours, serveur vérifié</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Fichier :</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Hôte :</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Port :</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Base de données :</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>U&amp;tilisateur :</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Chiffrement :</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Base de liens : le nom du fichier manque.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Base de liens : le nom de la base de données manque ou n&apos;en est pas un.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Vérifier les numéros de la base de liens</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>La base de liens n&apos;a aucun groupe dont vous fassiez partie.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Choisir un groupe</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Groupe de la base de liens :</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>La ligne %1 de %2 ne figure pas dans ce mapping.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Vérification des numéros de la base de liens</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>Les numéros n&apos;ont pas pu être vérifiés.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Des modifications dans la base de liens sont peut-être perdues.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>La licence pour la base de liens manque.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Connexion à la base de liens</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>Le mot de passe vaut jusqu&apos;à la fin du programme et n&apos;est pas enregistré. S&apos;il reste vide, il provient du fichier de mots de passe.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Sous ce nom, le journal indique qui a supprimé quelque chose.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Gestionnaire de liens</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Rechercher un numéro, un projet ou une désignation</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Afficher la ligne</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Lier à une autre ligne...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Choisissez ensuite le projet et la ligne, puis envoyez la sélection avec « Sélection vers le gestionnaire de liens ».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>&amp;Dernières suppressions...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Liens : %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>Rien n&apos;est supprimé qui puisse être rétabli.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>Rétablir les dernières suppressions ? Lignes : %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 les a supprimées le %2 de %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>Le premier lien (%Ln) ; la recherche en montre d&apos;autres.</numerusform>
            <numerusform>Les %Ln premiers liens ; la recherche en montre d&apos;autres.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Vérification des numéros</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Numéros des projets de ce mapping : %1, d&apos;autres projets : %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>Non comparés, car illisibles : %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Ligne retirée du catalogue ou absente</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmée comme retirée du catalogue</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>le projet ne l&apos;a pas</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Revendiqué par plusieurs lignes</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>La pièce diffère</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>La pièce diffère (non comparée)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Lignes ouvertes avec numéros</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Numéros : %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>La ligne %1 n&apos;existe pas dans %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>Le projet %1 ne peut pas être affiché.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Trouver</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Projet, ligne, commande ou réglage</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Des parties de mots suffisent ; un nombre à la suite désigne une ligne.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>Rien trouvé</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln résultat</numerusform>
            <numerusform>%Ln résultats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Les %1 premiers sur %Ln résultat</numerusform>
            <numerusform>Les %1 premiers sur %Ln résultats</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Réglage</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Erreur : </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Avertissement : </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Effacer les messages</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Copier tous les messages</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Pas de connexion à la base de liens : %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>Les numéros ERP ne peuvent pas être lus. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Lignes affectées de nouveau : aucune modification</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Il n&apos;y a pas de telle ligne ici. %1 va à la suivante.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>Le catalogue</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>À gauche se trouve l&apos;ancienne version du catalogue. Les images montrent où il reste quelque chose à décider. Sélectionnez un projet pour voir ses lignes.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Les cibles</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Ici figurent les projets de la nouvelle version qui peuvent reprendre des lignes, avec leurs conditions et leurs correspondances de variables.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Les lignes</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>À gauche l&apos;ancienne table, à droite la nouvelle. %1 confirme l&apos;affectation ou affecte la ligne choisie à droite, %2 l&apos;annule, %3 confirme que la ligne est retirée du catalogue.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Ce qui est encore ouvert</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>Le compteur indique combien de lignes attendent une décision. %1 va à la suivante, aussi dans le projet suivant.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Rien ne se perd</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Chaque étape peut être annulée. Après une panne, le programme propose de récupérer ce qui n&apos;était pas enregistré. La visite se trouve dans le menu Aide.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>Affecter les lignes de tout le catalogue ?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Ce qui est confirmé reste dans tous les cas. Cette étape peut être annulée.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Seulement les lignes sans affectation</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Refaire tout ce qui n&apos;est pas confirmé</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Tous les projets affectés</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>Le projet cible %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Projet cible : %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Réglages : %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>Il n&apos;y a pas d&apos;indication pour cet endroit</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Partager</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Ouverts récemment</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>Alle&amp;r à</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>Ré&amp;vision</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Seulement les lignes</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Base de liens</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>États des lignes</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Outils</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>Aucun fichier n&apos;est ouvert pour modification.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Mes modifications sur la version du fichier</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln conflit : ma décision</numerusform>
            <numerusform>%Ln conflits : ma décision</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln conflit : décision de l&apos;autre côté</numerusform>
            <numerusform>%Ln conflits : décision de l&apos;autre côté</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln conflit : à décider à nouveau</numerusform>
            <numerusform>%Ln conflits : à décider à nouveau</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>Le journal %1 ne peut pas être écrit (%2). Après une panne, les modifications seraient perdues : enregistrez bientôt.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>La version récupérée ne peut pas être sauvegardée (%1). Libérez de la place et ouvrez de nouveau ; le journal est inchangé.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Récupération après une panne</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>Le journal %1 ne peut pas être créé (%2). Après une panne, les modifications seraient perdues : enregistrez souvent.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>Aucun fichier de mapping n&apos;est ouvert.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Un enregistrement est en cours.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>Rien n&apos;a été enregistré. %1 Enregistrez sous un autre nom.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>Le verrou de %1 est perdu et ne peut pas être renouvelé. D&apos;autres pourraient modifier le fichier en même temps.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>La sauvegarde automatique a échoué (%1). Enregistrez bientôt.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>La modification n&apos;a pas été reprise. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Conflits marqués</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>« %1 » ne convient plus à ce qui a été changé depuis. La liste des étapes dit ce qui s’y oppose.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Recherche des projets cibles</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Interrompu, rien n&apos;a été créé</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Affectation des lignes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln projet : %1 au même endroit, %2 ailleurs, %3 réparti, %4 sans cible, %5 illisible</numerusform>
            <numerusform>%Ln projets : %1 au même endroit, %2 ailleurs, %3 répartis, %4 sans cible, %5 illisibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 sur %Ln projet</numerusform>
            <numerusform>%1 sur %Ln projets</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>dont %1 affectées, %2 à vérifier, %3 sans cible</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Interrompu : %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 avec %Ln ligne</numerusform>
            <numerusform>%1 avec %Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln modification reprise.</numerusform>
            <numerusform>%Ln modifications reprises.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln ligne a été décidée de la même façon des deux côtés.</numerusform>
            <numerusform>%Ln lignes ont été décidées de la même façon des deux côtés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln ligne a été décidée différemment et marquée en conflit.</numerusform>
            <numerusform>%Ln lignes ont été décidées différemment et marquées en conflit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln autre contradiction : la version du fichier vaut.</numerusform>
            <numerusform>%Ln autres contradictions : la version du fichier vaut.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>La ligne %1 ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>Aucune anomalie n&apos;est sélectionnée</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Corrigé : %1 dans %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Comparaison des tables en cours</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln ligne affectée examinée</numerusform>
            <numerusform>%Ln lignes affectées examinées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln anomalie</numerusform>
            <numerusform>%Ln anomalies</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Voisinage</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Les lignes %1 à %2 sont décalées de %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Les lignes %1 et %2 sont interverties</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>La ligne %1 est décalée de %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>La ligne %1 a la ligne cible d&apos;une autre</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>La ligne %1 est sautée</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>à régler</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Corrigé : %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Anomalie</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Corrigé</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Répertoire de l&apos;ancienne version du catalogue</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Répertoire de la nouvelle version du catalogue</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Affecter &amp;les lignes tout de suite</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nouveau mapping</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Ancienne version du catalogue :</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Catalogue à l&apos;intérieur :</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>&amp;Nouvelle version du catalogue :</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Choisir un fichier de mapping</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Fichier de mapping :</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Le répertoire de l&apos;ancienne version du catalogue manque.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Le répertoire de la nouvelle version du catalogue manque.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Chaque version a besoin d&apos;un répertoire contenant le catalogue.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>Le fichier de mapping a besoin d&apos;un nom.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>Le répertoire %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>À l&apos;enregistrement, la nouvelle version s&apos;ajoute ; une version de même date est remplacée, avec tout ce qui y est confirmé.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Utiliser ce fichier</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>le support est plein</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>le fichier devient plus grand que ce qui est permis ici</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>le droit d&apos;écriture manque</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>le support est protégé en écriture</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>le dossier ou le fichier n&apos;existe plus</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>à sa place se trouve autre chose qu&apos;un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>sans cible</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Ancienne ligne</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Nouvelle ligne</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Autres différences</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>La table du projet ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norme :</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Désignation :</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Version du projet :</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Version de la table :</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Lignes :</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Fichier :</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln ligne ouverte avec proposition</numerusform>
            <numerusform>%Ln lignes ouvertes avec proposition</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>dans %Ln motif</numerusform>
            <numerusform>dans %Ln motifs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln d&apos;entre elles est encore en cours de comparaison</numerusform>
            <numerusform>%Ln d&apos;entre elles sont encore en cours de comparaison</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Choisie : %Ln ligne</numerusform>
            <numerusform>Choisies : %Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln d&apos;entre elles retirée</numerusform>
            <numerusform>%Ln d&apos;entre elles retirées</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Différences des lignes ouvertes</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>dans %Ln projet</numerusform>
            <numerusform>dans %Ln projets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln ligne ouverte sans successeur</numerusform>
            <numerusform>%Ln lignes ouvertes sans successeur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Comparaison des tables en cours : %Ln projet lu</numerusform>
            <numerusform>Comparaison des tables en cours : %Ln projets lus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln projet</numerusform>
            <numerusform>%Ln projets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln autre ligne a ces différences et d&apos;autres</numerusform>
            <numerusform>%Ln autres lignes ont ces différences et d&apos;autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceptions</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>nombre proche</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>autre nombre</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>autre formulation</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>valeur ajoutée</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>valeur manquante</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>non comparable</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>aucune différence</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>autre graphie</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incertain : %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>dossier entier sans cible : %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>projet entier sans cible : %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>le projet cible n&apos;existe plus : %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1 : %2 n&apos;existe plus</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>aucune ligne semblable : %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nom du projet</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>un autre</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>autre valeur</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>une ou plusieurs d’entre elles par ligne</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>non disponible : aucun fichier n&apos;est ouvert</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>non disponible : la connexion à la base de liens est en cours</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>non disponible : %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>non disponible : aucune base de liens n&apos;est connectée</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>non disponible : le gestionnaire de liens n&apos;attend aucune sélection</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>non disponible : aucun projet n&apos;est sélectionné</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>non disponible : aucune ligne n&apos;est sélectionnée</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Numéro ERP pour %1, ligne %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Merci d&apos;attribuer un numéro ERP.

Projet : %1
Ligne : %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>Aucun message n&apos;a pu être commencé.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>Aucun programme de messagerie n&apos;est configuré sur cet ordinateur. La demande est la suivante :

%1 : %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>Aucune table visible ne peut être imprimée</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Imprimer : %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 a été envoyé à l&apos;imprimante</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 imprimé dans %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>%1 n&apos;a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>L&apos;imprimante n&apos;accepte pas de pages.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln ligne est confirmée bien que des valeurs de sa plage n&apos;aient pas de nouvelle ligne.</numerusform>
            <numerusform>%Ln lignes sont confirmées bien que des valeurs de leurs plages n&apos;aient pas de nouvelle ligne.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Revenir en arrière</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Confirmer quand même</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 : %Ln ligne</numerusform>
            <numerusform>%1 : %Ln lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>La ligne n&apos;a pas d&apos;affectation de plages de valeurs.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>manquantes : %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>multiples : %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>absentes de l&apos;ancienne plage : %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Plage de valeurs de la ligne</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1 : %2 sur %Ln valeur affectée</numerusform>
            <numerusform>%1 : %2 sur %Ln valeurs affectées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Raison de la décision</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Pour :</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Raison :</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>abandonnée</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>fusionnée avec une autre pièce</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>répartie en plusieurs pièces</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>déplacée dans un autre catalogue</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>pas encore vérifiée</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Récupéré</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>État du</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmée</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sans cible</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>La version enregistrée est plus récente que tout ce qui peut être récupéré.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Avec les modifications ultérieures (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Ouvrir la version enregistrée</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln étape</numerusform>
            <numerusform>%Ln étapes</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>Il existe pour %1 du travail non enregistré : %2, la dernière étant « %3 ». Il vient de %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 avec %Ln ligne</numerusform>
            <numerusform>%1 avec %Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 dans %Ln projet</numerusform>
            <numerusform>%1 dans %Ln projets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importation des tables</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 n&apos;a plus de fichier CSV et reste tel quel</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>Le dossier ne contient aucun fichier CSV ; rien n&apos;a été importé</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Interrompu : %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>Tout n&apos;a pas été écrit : %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Exporter des lignes</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tables (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Exportation des lignes</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Interrompu, rien n&apos;a été exporté</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Écrire un rapport</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Fichiers PDF (*.pdf);;Pages HTML (*.html);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Création du rapport</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Interrompu, aucun rapport n&apos;a été écrit</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Rapport écrit dans %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Annulé, aucun rapport n&apos;a été créé</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln table</numerusform>
            <numerusform>%Ln tables</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 nouvelles, %2 modifiées, %3 inchangées, %4 non importées</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln ligne exportée vers %1</numerusform>
            <numerusform>%Ln lignes exportées vers %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 avec %Ln ligne</numerusform>
            <numerusform>%1 avec %Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Remplacements convenus</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>dans toute la version du catalogue</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Convenir</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Révoquer</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Justificatifs</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>Repre&amp;ndre</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Un remplacement dit qu&apos;une ancienne valeur équivaut à une nouvelle. Il produit des propositions, mais ne confirme rien.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>convenu</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>convenu dans %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Lecture des tables en cours</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln ligne pour</numerusform>
            <numerusform>%Ln lignes pour</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln ligne contre</numerusform>
            <numerusform>%Ln lignes contre</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>Aucun n’est convenu. Quand la liste des différences est ouverte, ses remplacements sont proposés ici.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Rapport de mapping : %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Version du catalogue %1 vers %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Créé le %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>État des lignes</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Par dossier, avec tout ce qu&apos;il contient</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Par projet</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Pourquoi des lignes sont ouvertes</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>En quoi les lignes ouvertes diffèrent de leurs propositions</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Qui a décidé quoi</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Lignes ouvertes</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Ce qui n&apos;a pas pu être lu</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmée</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Confirmées comme retirées du catalogue</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Affectées avec certitude</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sans cible</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>En conflit</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probabilité</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceptions</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Jugées</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Justes</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Fausses au plus (certitude de 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>table illisible</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>non comparable</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>aucune différence</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>deux personnes ont décidé différemment</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>quelqu&apos;un d&apos;autre décide</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>une table n&apos;est pas lisible</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>une condition ou une formule échoue</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>aucune cible n&apos;est compétente</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>une colonne manque</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>plusieurs lignes sont égales</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>trop dissemblables</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>égales, mais pas confirmées</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>incertain : %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Lignes ouvertes sans successeur</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Lignes confirmées comme retirées du catalogue</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Ce qu&apos;elles ont en commun</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>au total</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Reprises de mappings antérieurs</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Mapping antérieur</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Encore telles que reprises</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Lignes jugées</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Lignes réglées : %1 sur %2 ; ouvertes : %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Lire les projets cibles depuis le dépôt</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Catalogue = svn://serveur:port/chemin</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Un catalogue par ligne. Sans ligne, le nom du catalogue est aussi celui de son serveur.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>la plus récente</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>Se&amp;rveur :</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Ré&amp;vision :</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Place &amp;sur cette machine :</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>&amp;Attente du serveur :</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Serveur, ligne %1 : « %2 » n&apos;est pas de la forme « Catalogue = svn://serveur:port/chemin ».</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Connexion au dépôt</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 demande une connexion.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>Le nom et le mot de passe valent jusqu&apos;à la fin du programme et ne sont pas enregistrés.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>La ligne %1 ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Plus aucune ligne n&apos;est ouverte</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Les tables ne sont pas encore comparées</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Depuis le début : %Ln ligne ouverte</numerusform>
            <numerusform>Depuis le début : %Ln lignes ouvertes</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Les lignes ouvertes viennent selon leur incertitude</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Les lignes ouvertes viennent selon leur emplacement</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>La ligne n&apos;appartient pas au motif sélectionné</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Ligne %1 retirée</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>Aucun motif n&apos;est sélectionné, ou toutes ses lignes sont décidées</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>confirmer dans %Ln projet ?</numerusform>
            <numerusform>confirmer dans %Ln projets ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>Cette étape peut être annulée.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Confirmer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln ligne confirmée</numerusform>
            <numerusform>%Ln lignes confirmées</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>Il n&apos;y a pas de candidat %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Ligne %1 → %2 confirmée</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Remplacements convenus : %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Choisissez un motif ou sélectionnez des lignes ouvertes</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Échantillon</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Tirer</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Échantillon, ligne %1 sur %2 : + juste, − fausse</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>Aucun échantillon n&apos;est en cours</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Les lignes de l&apos;échantillon sont déjà toutes décidées</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 justes sur %2</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Échantillon refusé, %1 ; jugé par %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>toutes les lignes jugées</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>avec 95 % de certitude, moins de %1 % fausses</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Échantillon : %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>jugé par %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>la fausse s&apos;y trouvait</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>La ligne %1 est fausse : l&apos;échantillon est terminé</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>Co&amp;ntinuer</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Voir la ligne fausse</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln d&apos;entre elles est incertaine.</numerusform>
            <numerusform>%Ln d&apos;entre elles sont incertaines.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Tous les motifs sont traités</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>dans %Ln projet</numerusform>
            <numerusform>dans %Ln projets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln ligne confirmée comme retirée du catalogue</numerusform>
            <numerusform>%Ln lignes confirmées comme retirées du catalogue</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>La ligne %1 dans %2 est fausse. L&apos;ensemble est divisé ; avec quelle partie faut-il continuer ?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Ce nombre sur %Ln ligne est tiré au sort et jugé une par une. %1 justes indiquent avec 95 % de certitude que moins de 5 % sont fausses, %2 justes moins de 1 %.</numerusform>
            <numerusform>Ce nombre de lignes sur %Ln est tiré au sort et jugé une par une. %1 justes indiquent avec 95 % de certitude que moins de 5 % sont fausses, %2 justes moins de 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Console de scripts</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Sortie des scripts</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Ligne d&apos;un script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Une ligne de JavaScript. Entrée l&apos;exécute, Tab complète, Haut et Bas parcourent l&apos;historique.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Arrête le script en cours (Échap)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Efface la sortie</translation>
    </message>
</context>
<context>
    <name>ScriptDesk</name>
    <message>
        <source>Skript %1</source>
        <translation>Script %1</translation>
    </message>
    <message>
        <source>(Konsole)</source>
        <translation>(console)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Terminé, code %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Il est trop grand.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>Ce n&apos;est pas du texte en UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>%1 ne peut pas être lu. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Ouvrir un script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Scripts (*.js);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Enregistrer le script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>%1 ne peut pas être écrit. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>Le script n&apos;est pas enregistré.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nouveau script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Ouvrir …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Arguments :</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Texte du script</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Arguments</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(processus %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>Le journal %1 ne peut pas être lu (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Après la dernière session terminée, le journal %1 n&apos;est pas lisible. Ce qui s&apos;y trouvait n&apos;est pas connu ; le journal est conservé.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>La fin du journal %1 n&apos;est pas lisible. La dernière modification peut manquer.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Le journal %1 est endommagé. Après l&apos;endroit abîmé, %Ln modification convient encore, %2 ne conviennent plus ; d&apos;autres peuvent manquer. Le journal est conservé.</numerusform>
            <numerusform>Le journal %1 est endommagé. Après l&apos;endroit abîmé, %Ln modifications conviennent encore, %2 ne conviennent plus ; d&apos;autres peuvent manquer. Le journal est conservé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>Le journal %1 est endommagé ou ne correspond pas au fichier de mapping. Au moins %Ln modification ultérieure manque ; le journal est conservé.</numerusform>
            <numerusform>Le journal %1 est endommagé ou ne correspond pas au fichier de mapping. Au moins %Ln modifications ultérieures manquent ; le journal est conservé.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Après un&amp;e décision, passer à la ligne ouverte suivante</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>La&amp;ngue :</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>C&amp;ouleurs :</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>Taille &amp;des caractères :</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Cop&amp;ie de sauvegarde toutes les :</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Un dossier par ligne, dans lequel peut être lu ce que les fichiers d&apos;un catalogue nomment hors des catalogues.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Dossiers autorisés :</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Dossiers autorisés : « %1 » n&apos;est pas un dossier avec un chemin complet.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>Le mapping n&apos;est partagé avec personne. Choisissez d&apos;abord la copie commune.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 existe déjà, et c&apos;est un autre mapping. Choisissez une autre copie, ou récupérez celle qui existe dans un nouveau fichier.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>D&apos;autres ont publié quelque chose depuis la dernière mise à jour.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Les lignes en conflit ne sont pas publiées : %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Il y a des modifications dans les dossiers d&apos;autres personnes : %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>Le dossier est déjà pris : %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Quelqu&apos;un d&apos;autre est en train de publier (%1). Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>La copie commune n&apos;est pas accessible : %1. Votre fichier est inchangé ; réessayez plus tard.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>L&apos;un des fichiers n&apos;est pas un mapping lisible : %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>L&apos;écriture a échoué : %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>Cela n&apos;a pas fonctionné.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Lecture de la copie commune</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Partagé par %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Récupération des modifications des autres</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>Il n&apos;y a rien de nouveau</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Publication des modifications</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapping modifié</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Publié, révision %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Cela est d&apos;abord repris. Ensuite, il est possible de publier.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Mettre à jour</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publier quand même</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Prendre des dossiers en charge</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Prendre en &amp;charge</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Enregistrement des dossiers</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Vous n&apos;avez plus de dossiers</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Vos dossiers : %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(ici)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>l&apos;a ouvert</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>ne l&apos;a pas ouvert</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>dernière fois %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>dossiers %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Votre révision %1, dernière révision %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>D&apos;autres ont publié quelque chose.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>Il n&apos;y a rien de nouveau de la part des autres.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Vos modifications ne sont pas encore publiées.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Copie commune : %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>La dernière publication avait été interrompue, mais elle est bien arrivée.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>La dernière publication a été interrompue. Publiez encore une fois.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>Le fichier commun avait été modifié dans la copie de travail sans être soumis. Cela est conservé dans %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>La copie de travail avait été quittée au milieu d&apos;une opération et a été remise en ordre.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>La gestion de la copie de travail était endommagée et a été récupérée de nouveau ; l&apos;ancienne est %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Quelque chose d&apos;interrompu a été remis en ordre.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Dossiers du catalogue, séparés par des virgules ; * vaut pour des caractères quelconques, ? pour un seul. Vide les rend tous :</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>annuler</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Tout est décidé</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Lignes qui attendent encore une décision</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtre : aucune ligne</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Lignes que montre le filtre sur toutes les lignes</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln ligne&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln lignes&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Ouvertes : %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre : %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 dans %Ln projet</numerusform>
            <numerusform>%1 dans %Ln projets</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Aucune ligne affectée pour l’instant</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Interrompt le travail en cours ; ce qui est terminé reste</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Erreurs et avertissements : %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Chercher qui, quoi ou lignes</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Revenir jusqu’ici</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Annule cette étape et toutes les suivantes en vigueur</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Aller à la l&amp;igne</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Annuler avec les dépendantes (%Ln)</numerusform>
            <numerusform>&amp;Annuler avec les dépendantes (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Annuler seulement celle-ci</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>Re&amp;faire avec les précédentes (%Ln)</numerusform>
            <numerusform>Re&amp;faire avec les précédentes (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>Re&amp;faire</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Encore aucune étape</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Aucune autre étape n’en dépend.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>L’étape peut être refaite seule.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>S’appuient dessus : %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Elle s’appuie sur : %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>S’y opposent, car ils ont décidé autrement : %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Il y a maintenant autre chose, qu’aucune étape de cette liste n’a décidé, par exemple un autre programme. L’étape ne peut plus être déplacée.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>et %Ln de plus</numerusform>
            <numerusform>et %Ln de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 dans %Ln projet</numerusform>
            <numerusform>%1 dans %Ln projets</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>en vigueur</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>dépassée</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>État du</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Lignes</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>La modification dans %1 ne prend effet que lorsque les lignes sont affectées de nouveau. Seul ce qui est confirmé est alors conservé.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln ligne dans %1 était confirmée comme retirée du catalogue et ne l&apos;est plus : %2</numerusform>
            <numerusform>%Ln lignes dans %1 étaient confirmées comme retirées du catalogue et ne le sont plus : %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>Dans %1, des variables restent ignorées : %2. Pour en affecter une de nouveau, choisissez « Formule... » ou supprimez la ligne et saisissez-la de nouveau.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Une condition du projet cible %1 dans %2 a disparu.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Une correspondance de variables du projet cible %1 dans %2 a disparu.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Ligne %1 → %2 dans %3 : %Ln autre ligne a aussi la ligne cible : %4</numerusform>
            <numerusform>Ligne %1 → %2 dans %3 : %Ln autres lignes ont aussi la ligne cible : %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln ligne dans %1 partage sa ligne cible avec des lignes nouvellement affectées : %2</numerusform>
            <numerusform>%Ln lignes dans %1 partagent leur ligne cible avec des lignes nouvellement affectées : %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln conflit accepté</numerusform>
            <numerusform>%Ln conflits acceptés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln ligne confirmée</numerusform>
            <numerusform>%Ln lignes confirmées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln ligne confirmée comme retirée du catalogue</numerusform>
            <numerusform>%Ln lignes confirmées comme retirées du catalogue</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln ligne affectée</numerusform>
            <numerusform>%Ln lignes affectées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>affectation de %Ln ligne annulée</numerusform>
            <numerusform>affectation de %Ln lignes annulée</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>affectation de plages de valeurs de %Ln ligne modifiée</numerusform>
            <numerusform>affectation de plages de valeurs de %Ln lignes modifiée</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>conflit de %Ln ligne résolu</numerusform>
            <numerusform>conflit de %Ln lignes résolu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln ligne modifiée</numerusform>
            <numerusform>%Ln lignes modifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>ligne %1 → %2 confirmée</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>ligne %1 → %2 affectée</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (auparavant %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>ligne %1 confirmée comme retirée du catalogue (auparavant %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>ligne %1 confirmée comme retirée du catalogue</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>affectation de la ligne %1 annulée (auparavant %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Projet ajouté</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Projet supprimé</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Projet cible ajouté</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Projet cible supprimé</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Ordre des projets cibles modifié</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Conditions modifiées</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Correspondance de variables modifiée</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versions modifiées</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>État modifié</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 dans %Ln projet</numerusform>
            <numerusform>%1 dans %Ln projets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Passer</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Terminer</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, ligne %2 : la rangée %3 de l&apos;affectation de plages de valeurs n&apos;est pas de la forme {NAME=VALEUR} -&gt; numéro de ligne : « %4 ». Corrigez-la ou résolvez-la à nouveau.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, ligne %2 : l&apos;affectation de plages de valeurs nomme la ligne %3, mais la ligne n&apos;a pas de projet cible. Affectez-la ou videz le texte.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, ligne %2 : l&apos;affectation de plages de valeurs nomme la ligne %3, qui n&apos;existe pas dans %4. Corrigez-la ou résolvez-la à nouveau.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1 : la table du projet cible %2 ne peut pas être lue, ses affectations de plages de valeurs ne sont pas vérifiées. Contrôlez le répertoire des projets cibles (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Vérification des affectations de plages de valeurs</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln affectation de plages de valeurs vérifiée</numerusform>
            <numerusform>%Ln affectations de plages de valeurs vérifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>aucune anomalie</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln anomalie</numerusform>
            <numerusform>%Ln anomalies</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (interrompu) : %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Rapprocher des versions de catalogue</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Un catalogue vient de paraître, et chaque ligne de l&apos;ancienne version doit être reportée sur une ligne de la nouvelle. Le programme propose, vous vérifiez et confirmez.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Ouverts récemment :</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Nouveau mapping...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Crée un nouveau fichier de mapping à partir de deux versions du catalogue</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Ou&amp;vrir...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Ouvre un fichier de mapping</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Ouvrir le &amp;catalogue d&apos;exemple</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Ouvre un fichier de mapping personnel pour le catalogue d&apos;exemple fourni</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Écrit toutes les modifications dans le fichier de mapping</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Écrit dans un autre fichier de mapping</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Ferme le fichier de mapping</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Répertoires des catalogues...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Choisit les répertoires de l&apos;ancienne et de la nouvelle version du catalogue</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Copie commune...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Choisit la copie par laquelle plusieurs personnes travaillent à ce mapping</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Reprend ce que d&apos;autres ont publié</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publier</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Transmet vos modifications aux autres</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>Prendre &amp;des dossiers en charge...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Indique aux autres de quels dossiers vous vous occupez</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Qui travaille à quoi</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Montre qui a ouvert le mapping et à qui appartiennent quels dossiers</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importer des tables...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Fait d&apos;un dossier de fichiers CSV les projets d&apos;un catalogue</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Exporter &amp;des lignes...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Écrit toutes les lignes de la version avec leurs affectations dans un fichier CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Rappor&amp;t...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Écrit en PDF ou HTML où en est la version et pourquoi des lignes sont ouvertes</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Quitte le programme</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Annule la dernière étape</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Refait l&apos;étape annulée</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>&amp;Confirmer les lignes...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Confirme en une étape l&apos;affectation des lignes sélectionnées ou de toutes celles affichées</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Confirmer les lignes sans cible comme retirées &amp;du catalogue...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Parmi les lignes sélectionnées ou toutes celles affichées, confirme celles sans cible comme retirées du catalogue</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>A&amp;nnuler les affectations...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Annule en une étape l&apos;affectation des lignes sélectionnées ou de toutes celles affichées</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Annuler les affectations &amp;et confirmer...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Les lignes sélectionnées, ou toutes celles affichées, sont retirées du catalogue : annule et confirme en une étape</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Affecter tous &amp;les projets...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Cherche des affectations pour toutes les lignes du catalogue ; ce qui est confirmé reste</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Vérifier les affectations de &amp;plages de valeurs</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Compare tous les textes de plages de valeurs avec les tables des projets cibles</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Scr&amp;ipt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Ouvre une fenêtre où écrire et exécuter des scripts</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>Réglage&amp;s...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Langue, caractères, touches, sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Ligne ouverte suivante</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Va à la ligne suivante qui attend une décision, aussi dans le projet suivant</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Ligne &amp;ouverte précédente</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Va à la ligne précédente qui attend une décision, aussi dans le projet précédent</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>&amp;Aller à la ligne...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Cherche une ligne du projet par numéro ou désignation</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>L&apos;autre &amp;table</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Passe de l&apos;ancienne table à la nouvelle et inversement</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>T&amp;rouver...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Trouve projets, lignes, commandes et réglages par des parties de mots</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Motifs de différences</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Montre en quoi les lignes ouvertes diffèrent de leurs propositions</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Ancien et nouveau</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Montre côte à côte les anciennes et les nouvelles valeurs de la ligne, et ses candidats</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Confirmer le motif...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Confirme en une étape toutes les lignes du motif sélectionné</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Retirer la ligne</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>La ligne n&apos;est pas confirmée avec les autres du motif</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Ligne suivante du motif</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Va à la ligne ouverte suivante du motif sélectionné</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>Ligne &amp;précédente du motif</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Va à la ligne ouverte précédente du motif sélectionné</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>Motif &amp;suivant</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Sélectionne le motif suivant de la liste</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Les plus &amp;incertaines d&apos;abord</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Les lignes ouvertes viennent selon le risque d&apos;erreur et non selon leur emplacement</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>&amp;Voisinage</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Montre où les affectations de lignes voisines ne s&apos;accordent pas</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>Remettre les lignes &amp;en place</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Corrige en une étape l&apos;anomalie sélectionnée du voisinage</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Remplaceme&amp;nts...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Convient de remplacements de valeurs pour la version du catalogue ou les révoque</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>Éc&amp;hantillon...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Tire au sort des lignes du motif sélectionné ou des lignes sélectionnées, à juger une par une</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>Échantillon : &amp;juste</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>La ligne affichée de l&apos;échantillon est bien affectée</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Échantillon : &amp;fausse</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>La ligne affichée de l&apos;échantillon est mal affectée ; l&apos;échantillon se termine</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Candidat &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Affecte ce candidat à la ligne et le confirme</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Candidat &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Candidat &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Candidat &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Candidat &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Plage de valeurs de la ligne</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Montre quelles valeurs de l&apos;ancienne plage ont de nouvelles lignes</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>Confli&amp;ts</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Montre les lignes que deux côtés ont décidées différemment</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Conflit ouvert suivant</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Va à la ligne suivante dont le conflit est encore à régler</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Conflit : ma décision</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>Dans ce conflit, ma décision vaut</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Conflit : décision de l&apos;autre</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>Dans ce conflit, la décision de l&apos;autre côté vaut</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Conflit : décider à nouveau</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>Aucune des décisions ne vaut ; la ligne est de nouveau sans cible</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Reconstruit l&apos;affichage : arborescence, statistiques, tables du disque</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Ouvre le manuel à l&apos;endroit dont il s&apos;agit</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Touches...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Montre et modifie les touches de toutes les commandes</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Indication pour cet endroit</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Affiche l&apos;indication là où vont les touches : dans une table, pourquoi la ligne a son état</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Visite guidée</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Montre en quelques étapes où se trouve quoi</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>À &amp;propos de ce programme</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Version et répertoires</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Étapes...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Liste toutes les étapes, y compris des sessions passées, et en annule une seule</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Projet suivant avec des lignes ouvertes</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va au projet suivant où il reste à décider</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Projet précédent avec des lignes ouvertes</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va au projet précédent où il reste à décider</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtre sur toutes les lignes</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Choisit les lignes de tous les projets par état, raison, différence et personne ; F8 les parcourt</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>I&amp;mprimer...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Montre les pages de la table visible et les imprime</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Montre les pages du rapport et les imprime</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Imprimer le rapport...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Reprendre des décisions...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Reprend d&apos;un mapping antérieur, en une étape, ce qui a déjà été confirmé pour la même ancienne version</translation>
    </message>
</context>
</TS>
