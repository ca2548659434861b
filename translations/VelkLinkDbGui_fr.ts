<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(introuvable)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Modification effectuée par un autre utilisateur :</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;La ligne a été marquée comme retirée du catalogue.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;La ligne a été réaffectée. La ligne nouvellement affectée n'existe pas (localement).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Cette ligne a été marquée comme retirée du catalogue.</translation>
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
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>La mise à jour de l'enregistrement a échoué !</translation>
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
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confirmer toutes les affectations</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>La création de l'enregistrement a échoué !</translation>
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
        <source>Aus der Auswahl (%1): %2</source>
        <translation>De la sélection (%1) : %2</translation>
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
        <source>Auswählen</source>
        <translation>Sélectionner</translation>
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
        <source>Bedingung hinzufügen</source>
        <translation>Ajouter une condition</translation>
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
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Les conditions et les correspondances de variables sont proposées. Elles valent dès qu’une ligne de la cible est confirmée.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Authentifier l'utilisateur/changer d'utilisateur</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Remplacer les projets cibles déjà affectés</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Affectations confirmées</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>La résolution des plages de valeurs peut durer très longtemps selon les variables choisies et la taille de la table.
Vraiment continuer ?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>La pièce n'a pas pu être supprimée, car plusieurs assemblages y font référence !</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>Le projet cible %1 n'existe plus</translation>
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
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Afficher les noms de fichiers au lieu des descriptions</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Modifier l'enregistrement</translation>
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
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>L'algorithme contient des erreurs :
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>L'appel de %1 a échoué !</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>L'enregistrement n'a pas pu être supprimé !</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Les conditions du projet %1 ont été modifiées.</translation>
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
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>La correspondance des variables du projet %1 a été modifiée.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>La ligne %1 a été modifiée.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Les lignes n'ont pas été réaffectées et restent telles quelles. Ces projets cibles ne peuvent pas être lus : %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>La variable %1 n’existe pas dans la table source</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Cette ligne est retirée du catalogue. Le modélisateur l'a confirmé</translation>
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
        <translation>Le modélisateur a confirmé cette affectation</translation>
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
        <source>Einfügen</source>
        <translation>Coller</translation>
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
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>Tous les sous-éléments n'ont pas pu être supprimés, car d'autres assemblages font aussi référence à certains d'entre eux !</translation>
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
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Erreur lors de la copie de la condition :
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Erreur lors de la copie de la correspondance de variables.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Modifier la formule</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Formule...</translation>
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
        <source>Katalog</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Aucun projet ne correspond au choix sous l'arbre.
Désactivez « %1 » pour revoir tous les projets.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>Aucune erreur trouvée</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Aucune ligne n'est sans affectation.
Décochez « %1 » pour voir toutes les lignes.</translation>
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
        <source>Name</source>
        <translation>Nom</translation>
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
        <source>Pfad:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Sélectionner un projet</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Rechercher ou sélectionner un projet</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Ouvrir le projet</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Chemin du projet :</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Vous êtes sur le point de supprimer un assemblage qui contient des sous-éléments. Faut-il supprimer aussi tous les sous-éléments ?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Vérifier la syntaxe</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Choisir une ligne de la table</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
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
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Ajouter une correspondance de variables</translation>
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
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Activer et désactiver les séries préférentielles</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Séries préférentielles oui/non</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valeur</translation>
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
        <source>Wertkombinationen: %1</source>
        <translation>Combinaisons de valeurs : %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET du document sélectionné :</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>N'afficher que les projets avec des lignes non affectées</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>N'afficher que les projets avec des mappings incomplets</translation>
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
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Lignes : %1 sur %2 · ouvertes qui seraient affectées : %3 · confirmées qui ne conviendraient plus : %4</translation>
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
        <source>enthält Fehler!</source>
        <translation>contient des erreurs !</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Vue d'ensemble</translation>
    </message>
</context>
</TS>
