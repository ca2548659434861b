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
        <source>Andere Werte der Wertebereiche gehören zu einem anderen Ziel.</source>
        <translation>D'autres valeurs des plages appartiennent à une autre cible.</translation>
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
        <source>Der Text ist leer</source>
        <translation>Le texte est vide</translation>
    </message>
    <message>
        <source>Die Funktion %1 ist nicht bekannt</source>
        <translation>La fonction %1 est inconnue</translation>
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
        <source>Die Tabelle des Zielprojekts konnte nicht gelesen werden.
  Projekt: %1</source>
        <translation>La table du projet cible n'a pas pu être lue.
  Projet : %1</translation>
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
        <source>Die Werte der Variable %1 sind verschieden.
  Alter Wert: %2
  Neuer Wert: %3</source>
        <translation>Les valeurs de la variable %1 diffèrent.
  Ancienne valeur : %2
  Nouvelle valeur : %3</translation>
    </message>
    <message>
        <source>Die Zielzeile ist schon für eine andere Zeile bestätigt.</source>
        <translation>La ligne cible est déjà confirmée pour une autre ligne.</translation>
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
        <source>Ein Text in der Formel für %1 wird länger als %2 Zeichen und bleibt ohne Wert</source>
        <translation>Un texte de la formule pour %1 dépasse %2 caractères et reste sans valeur</translation>
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
        <source>Erwartet wird %1, gefunden wurde %2</source>
        <translation>%1 attendu, %2 trouvé</translation>
    </message>
    <message>
        <source>Erwartet wird eine Zuweisung an die Variable %1</source>
        <translation>Une affectation à la variable %1 est attendue</translation>
    </message>
    <message>
        <source>Falsche Anzahl von Argumenten für die Funktion %1</source>
        <translation>Nombre d'arguments incorrect pour la fonction %1</translation>
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
        <source>Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.</source>
        <translation>La source et la cible n'ont aucune variable commune ayant une valeur.</translation>
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
        <source>Zeichen %1: %2</source>
        <translation>Caractère %1 : %2</translation>
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
</context>
</TS>
