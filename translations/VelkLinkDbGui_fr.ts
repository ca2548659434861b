<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>  Zeile %1</source>
        <translation>  Ligne %1</translation>
    </message>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(introuvable)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Modification effectuée par un autre utilisateur :</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;La ligne a été marquée comme supprimée du programme.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;La ligne a été réaffectée. La ligne nouvellement affectée n'existe pas (localement).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Cette ligne a été marquée comme supprimée du programme.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Cette ligne a été affectée à la ligne&lt;br /&gt;%1 du projet %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nouvelle affectation : &lt;br /&gt;%3 du projet %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Affecter la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Ligne actuellement affectée</translation>
    </message>
    <message>
        <source>Alle Spaltenfilter aufheben</source>
        <translation>Supprimer tous les filtres de colonne</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confirmer toutes les affectations</translation>
    </message>
    <message>
        <source>Am Anfang der Tabelle fortgesetzt</source>
        <translation>Poursuivi au début de la table</translation>
    </message>
    <message>
        <source>Am Ende der Tabelle fortgesetzt</source>
        <translation>Poursuivi à la fin de la table</translation>
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
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Affecter les plages de valeurs résolues pour cette ligne</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Affecter les plages de valeurs résolues</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Annuler la sélection</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Sélection vers le gestionnaire de liens</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Envoyer la sélection au gestionnaire de liens</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Lignes affectées automatiquement</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Afficher l'arborescence filtrée</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Demander un numéro ERP par courriel</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Générer une condition pour la ligne sélectionnée et la copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Supprimer la condition</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Authentifier l'utilisateur/changer d'utilisateur</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Affectations confirmées</translation>
    </message>
    <message>
        <source>Bitte warten</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>Bricht die Arbeit ab</source>
        <translation>Interrompt le travail</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>La résolution des plages de valeurs peut durer très longtemps selon les variables choisies et la taille de la table.
Vraiment continuer ?</translation>
    </message>
    <message>
        <source>Das Projekt liegt nicht unter dem Katalogverzeichnis %1</source>
        <translation>Le projet ne se trouve pas sous le répertoire de catalogue %1</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Le projet cible %1 n'existe plus</translation>
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
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Le projet cible avec le chemin %1 a été supprimé.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Le projet cible avec le chemin %1 a été ajouté.</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Ajouter un enregistrement</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Supprimer l'enregistrement</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Ajouter un enregistrement à la base de liens</translation>
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
        <source>Der Text ist leer</source>
        <translation>Le texte est vide</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Les conditions du projet %1 ont été modifiées.</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La fonction %1 est inconnue</translation>
    </message>
    <message>
        <source>Die Maske %1 kann nicht geladen werden: %2</source>
        <translation>Le formulaire %1 ne peut pas être chargé : %2</translation>
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
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>La version du projet cible avec le chemin %1 a été modifiée.
  Ancienne date du projet : %2, nouvelle date du projet : %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>La table du projet source n'a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>La table du projet cible n'a pas pu être lue.
  Projet : %1</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>La table d'au moins un projet source n'a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>La version de la table du projet cible avec le chemin %1 a été modifiée.
  Ancienne date de la table : %2, nouvelle date de la table : %3</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>La correspondance des variables du projet %1 a été modifiée.</translation>
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
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>La ligne %1 a été modifiée.</translation>
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
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Cette ligne est supprimée du programme. Le modeleur l'a confirmé</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Cette ligne n'a pas pu être affectée</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Cette ligne a été affectée automatiquement. L'affectation doit être confirmée ou corrigée</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>Le modeleur a confirmé cette affectation</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Affecter ce projet à la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Liste des documents</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Modifications effectuées par la mise à jour du mapping ERP : </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Demander un numéro ERP</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts ist nicht erfüllt.
  %1</source>
        <translation>Une condition du projet cible n'est pas remplie.
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1 attendu, %2 trouvé</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Une affectation à la variable %1 est attendue</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Il existe une affectation de plage de valeurs pour cette ligne.
L'affectation doit être modifiée par « Modifier l'affectation de plages de valeurs »</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Il existe au moins un conflit.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Il existe au moins une affectation confirmée.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Il existe au moins une ligne non affectée.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Il existe au moins une modification non confirmée.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Un mapping du projet %1 a été supprimé.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Un mapping du projet %1 a été ajouté.</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Nombre d'arguments incorrect pour la fonction %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Il y a un conflit pour cette ligne. L'affectation doit être confirmée ou corrigée</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Nombre total de lignes</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Choisir un groupe</translation>
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
        <source>In der Tabelle suchen</source>
        <translation>Rechercher dans la table</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Classer</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflits</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Afficher la légende</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Gestionnaire de liens</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Ouvrir le gestionnaire de liens</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nouveau...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Créer un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Insérer un nouvel enregistrement (reprend les valeurs de l'enregistrement sélectionné)</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Lignes introuvables</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Désignation de la norme</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Numéro de la norme</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>N'afficher que les lignes affectées plusieurs fois</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>N'afficher que les lignes de la table d'origine affectées à cette ligne</translation>
    </message>
    <message>
        <source>Nächste Fundstelle (F3)</source>
        <translation>Occurrence suivante (F3)</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Ouvrir le projet</translation>
    </message>
    <message>
        <source>Projekte (*.prj)</source>
        <translation>Projets (*.prj)</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Chemin du projet :</translation>
    </message>
    <message>
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>La source et la cible n'ont aucune variable commune ayant une valeur.</translation>
    </message>
    <message>
        <source>Sortierung aufheben</source>
        <translation>Annuler le tri</translation>
    </message>
    <message>
        <source>Spalte absteigend sortieren</source>
        <translation>Trier la colonne par ordre décroissant</translation>
    </message>
    <message>
        <source>Spalte aufsteigend sortieren</source>
        <translation>Trier la colonne par ordre croissant</translation>
    </message>
    <message>
        <source>Spaltenbreiten anpassen</source>
        <translation>Ajuster la largeur des colonnes</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtre de colonne</translation>
    </message>
    <message>
        <source>Spaltenfilter %1</source>
        <translation>Filtre de colonne %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Fermer la recherche (Échap)</translation>
    </message>
    <message>
        <source>Suchen ...</source>
        <translation>Rechercher...</translation>
    </message>
    <message>
        <source>Tabelle %1</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Choisir une ligne de la table</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorer la variable</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Correspondance des variables</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Afficher les colonnes masquées</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Vos modifications qui n'ont pas pu être reprises :</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Modification que vous aviez prévue :</translation>
    </message>
    <message>
        <source>Vorherige Fundstelle (Umschalt+F3)</source>
        <translation>Occurrence précédente (Maj+F3)</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Activer et désactiver les séries préférentielles</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Séries préférentielles oui/non</translation>
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
        <source>Wertebereich (%1 Werte): %2</source>
        <translation>Plage de valeurs (%1 valeurs) : %2</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Choisir les variables à plage de valeurs</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Modifier les affectations de plages de valeurs</translation>
    </message>
    <message>
        <source>Wird abgebrochen...</source>
        <translation>Annulation en cours...</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET du document sélectionné :</translation>
    </message>
    <message>
        <source>Zeichen %1: %2</source>
        <translation>Caractère %1 : %2</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>N'afficher que les projets avec des lignes non affectées</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>N'afficher que les projets avec des correspondances incomplètes</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>N'afficher que les projets avec des lignes affectées</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>N'afficher que les lignes non affectées (projet source)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>N'afficher que les lignes non affectées (projet cible)</translation>
    </message>
    <message>
        <source>Zeigt Zeilen, deren Wert den Text enthält. Mit =, &lt;, &lt;=, &gt; oder &gt;= davor wird verglichen.</source>
        <translation>Affiche les lignes dont la valeur contient le texte. Précédé de =, &lt;, &lt;=, &gt; ou &gt;=, il est comparé.</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Affectation de la ligne avec LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Affecter à nouveau les lignes</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Réaffectation des lignes</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Numéro de ligne</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Projet cible</translation>
    </message>
    <message>
        <source>Zielprojekt auswählen</source>
        <translation>Choisir un projet cible</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Supprimer le projet cible</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Ajouter un projet cible</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Déplacer le projet cible vers le haut</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Déplacer le projet cible vers le bas</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Variable cible</translation>
    </message>
    <message>
        <source>Zu wenige Werte der Zeile haben eine Entsprechung in der Zieltabelle.
  Ohne Entsprechung: %1</source>
        <translation>Trop peu de valeurs de la ligne ont un équivalent dans la table cible.
  Sans équivalent : %1</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Affectations à vérifier</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Confirmer l'affectation</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Annuler l'affectation de cette ligne</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Annuler l'affectation de cette ligne et confirmer</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Supprimer la correspondance</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Annuler l'affectation à ce projet</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Annuler l'affectation à ce projet et confirmer (CTRL + x)</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>la fin</translation>
    </message>
    <message>
        <source>ein Operator oder das Ende</source>
        <translation>un opérateur ou la fin</translation>
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
        <source>eine schließende Klammer</source>
        <translation>une parenthèse fermante</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>contient des erreurs !</translation>
    </message>
    <message>
        <source>kein Wert</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>noch %1</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Vue d'ensemble</translation>
    </message>
</context>
</TS>
