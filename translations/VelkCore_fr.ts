<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>VelkCore</name>
    <message>
        <source>Abschnittsüberschrift ohne Ende</source>
        <translation>titre de section sans fin</translation>
    </message>
    <message>
        <source>Anführungszeichen ohne Ende; der Text gilt, wie er dasteht</source>
        <translation>guillemet sans fin ; le texte vaut tel quel</translation>
    </message>
    <message>
        <source>Das Dokument hat keinen Wert.</source>
        <translation>Le document n'a pas de valeur.</translation>
    </message>
    <message>
        <source>Das ist kein JSON.</source>
        <translation>Ceci n'est pas du JSON.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>Ce n'est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Das schließende Anführungszeichen eines Textes fehlt.</source>
        <translation>Le guillemet fermant d'un texte manque.</translation>
    </message>
    <message>
        <source>Der Name eines Eintrags fehlt.</source>
        <translation>Le nom d'une entrée manque.</translation>
    </message>
    <message>
        <source>Die Kopie unterscheidet sich vom Original.</source>
        <translation>La copie diffère de l'original.</translation>
    </message>
    <message>
        <source>Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen.</source>
        <translation>Un caractère de contrôle dans un texte doit être écrit comme séquence d'échappement.</translation>
    </message>
    <message>
        <source>Ein Text enthält ein halbes Surrogatpaar.</source>
        <translation>Un texte contient une moitié de paire de substitution.</translation>
    </message>
    <message>
        <source>Ein Text enthält eine unbekannte Escape-Folge.</source>
        <translation>Un texte contient une séquence d'échappement inconnue.</translation>
    </message>
    <message>
        <source>Ein Text ist kein UTF-8.</source>
        <translation>Un texte n'est pas en UTF-8.</translation>
    </message>
    <message>
        <source>Ein Wert fehlt.</source>
        <translation>Une valeur manque.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern hinter ihrem Punkt.</source>
        <translation>Un nombre n'a pas de chiffres après son point.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern in ihrem Exponenten.</source>
        <translation>Un nombre n'a pas de chiffres dans son exposant.</translation>
    </message>
    <message>
        <source>Eine Zahl hat keine Ziffern.</source>
        <translation>Un nombre n'a pas de chiffres.</translation>
    </message>
    <message>
        <source>Eine Zahl ist zu groß.</source>
        <translation>Un nombre est trop grand.</translation>
    </message>
    <message>
        <source>Hinter \u müssen vier hexadezimale Ziffern stehen.</source>
        <translation>Après \u il faut quatre chiffres hexadécimaux.</translation>
    </message>
    <message>
        <source>Hinter dem Dokument steht noch etwas.</source>
        <translation>Il y a encore quelque chose après le document.</translation>
    </message>
    <message>
        <source>Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt.</source>
        <translation>Un deux-points manque après le nom d'une entrée.</translation>
    </message>
    <message>
        <source>Hinter einem Eintrag fehlt ein Komma oder }.</source>
        <translation>Une virgule ou } manque après une entrée.</translation>
    </message>
    <message>
        <source>Hinter einem Listenwert fehlt ein Komma oder ].</source>
        <translation>Une virgule ou ] manque après une valeur de liste.</translation>
    </message>
    <message>
        <source>Text hinter den Anführungszeichen; alles gilt, wie es dasteht</source>
        <translation>texte après les guillemets ; tout vaut tel quel</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>das ist ein Verzeichnis</source>
        <translation>c'est un répertoire</translation>
    </message>
    <message>
        <source>das ist keine Erweiterung: VELK_EXTENSION fehlt</source>
        <translation>ce n'est pas une extension : VELK_EXTENSION manque</translation>
    </message>
    <message>
        <source>das ist keine gewöhnliche Datei</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>der Name enthält ein NUL-Zeichen</source>
        <translation>le nom contient un caractère NUL</translation>
    </message>
    <message>
        <source>der Text hinter der Abschnittsüberschrift bleibt unbeachtet</source>
        <translation>le texte après le titre de section est ignoré</translation>
    </message>
    <message>
        <source>die Datei ist UTF-16; speichern Sie sie als UTF-8</source>
        <translation>le fichier est en UTF-16 ; enregistrez-le en UTF-8</translation>
    </message>
    <message>
        <source>die Erweiterung ist für Version %1 gemacht, dies ist %2; übersetzen Sie sie neu</source>
        <translation>l'extension est faite pour la version %1, celle-ci est %2 ; recompilez-la</translation>
    </message>
    <message>
        <source>die Zeilen enden allein mit Wagenrückläufen; speichern Sie die Datei mit Zeilenvorschüben</source>
        <translation>les lignes se terminent par de seuls retours chariot ; enregistrez le fichier avec des sauts de ligne</translation>
    </message>
    <message>
        <source>die unbekannte Escape-Folge %1 gilt, wie sie dasteht</source>
        <translation>la séquence d'échappement inconnue %1 vaut telle quelle</translation>
    </message>
    <message>
        <source>ist nur zum Lesen da</source>
        <translation>est en lecture seule</translation>
    </message>
    <message>
        <source>kein UTF-8</source>
        <translation>pas en UTF-8</translation>
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
        <source>weder Abschnitt noch Schlüssel noch Kommentar</source>
        <translation>ni section, ni clé, ni commentaire</translation>
    </message>
</context>
</TS>
