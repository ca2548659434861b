<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="de_DE">
<context>
    <name>BulkOperation</name>
    <message>
        <source>Es ist nichts zu ändern.</source>
        <translation>No hay nada que cambiar.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigen?</source>
        <translation>
            <numerusform>¿Confirmar %Ln fila?</numerusform>
            <numerusform>¿Confirmar %Ln filas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>¿Confirmar %Ln fila como descatalogada?</numerusform>
            <numerusform>¿Confirmar %Ln filas como descatalogadas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben?</source>
        <translation>
            <numerusform>¿Quitar la asignación de %Ln fila?</numerusform>
            <numerusform>¿Quitar la asignación de %Ln filas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufheben und als ausgelaufen bestätigen?</source>
        <translation>
            <numerusform>¿Quitar la asignación de %Ln fila y confirmarla como descatalogada?</numerusform>
            <numerusform>¿Quitar la asignación de %Ln filas y confirmarlas como descatalogadas?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind schon bestätigt.</source>
        <translation>
            <numerusform>%Ln de ellas ya está confirmada.</numerusform>
            <numerusform>%Ln de ellas ya están confirmadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon verliert/verlieren ihre Wertebereichszuordnung.</source>
        <translation>
            <numerusform>%Ln de ellas pierde su asignación de rangos de valores.</numerusform>
            <numerusform>%Ln de ellas pierden su asignación de rangos de valores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ohne Ziel bleibt/bleiben unbestätigt.</source>
        <translation>
            <numerusform>%Ln fila sin destino queda sin confirmar.</numerusform>
            <numerusform>%Ln filas sin destino quedan sin confirmar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bleibt/bleiben, wie sie ist/sind.</source>
        <translation>
            <numerusform>%Ln fila queda como está.</numerusform>
            <numerusform>%Ln filas quedan como están.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) mit Konflikt wird/werden nicht geändert.</source>
        <translation>
            <numerusform>%Ln fila en conflicto no se cambia.</numerusform>
            <numerusform>%Ln filas en conflicto no se cambian.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) ist/sind in keinem Zielprojekt eingetragen.</source>
        <translation>
            <numerusform>%Ln fila no figura en ningún proyecto de destino.</numerusform>
            <numerusform>%Ln filas no figuran en ningún proyecto de destino.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt.</source>
        <translation>
            <numerusform>%Ln fila confirmada.</numerusform>
            <numerusform>%Ln filas confirmadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>%Ln fila confirmada como descatalogada.</numerusform>
            <numerusform>%Ln filas confirmadas como descatalogadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben.</source>
        <translation>
            <numerusform>Quitada la asignación de %Ln fila.</numerusform>
            <numerusform>Quitada la asignación de %Ln filas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben und als ausgelaufen bestätigt.</source>
        <translation>
            <numerusform>Quitada la asignación de %Ln fila, confirmada como descatalogada.</numerusform>
            <numerusform>Quitada la asignación de %Ln filas, confirmadas como descatalogadas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CandidateModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>sin sucesora</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Fila nueva</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
</context>
<context>
    <name>CarryCommands</name>
    <message>
        <source>%1 hier schon entschieden oder sicher</source>
        <translation>%1 ya decididas o seguras aquí</translation>
    </message>
    <message>
        <source>%1 ohne Zeile im neuen Stand</source>
        <translation>%1 sin fila en la nueva versión</translation>
    </message>
    <message>
        <source>%1 damals als ausgelaufen bestätigt</source>
        <translation>%1 confirmadas entonces como descatalogadas</translation>
    </message>
    <message>
        <source>%1 in Projekten, die hier fehlen</source>
        <translation>%1 en proyectos que faltan aquí</translation>
    </message>
    <message>
        <source>%1 dort im Konflikt</source>
        <translation>%1 en conflicto allí</translation>
    </message>
    <message>
        <source>Nicht übernommen: %1</source>
        <translation>No adoptadas: %1</translation>
    </message>
    <message>
        <source>Aus %1 ist nichts zu übernehmen.</source>
        <translation>No hay nada que adoptar de %1.</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Mapping vom Katalogstand %1.</source>
        <translation>El archivo no contiene ningún mapeo desde la versión del catálogo %1.</translation>
    </message>
    <message>
        <source>Auch diese Datei führt zum Katalogstand %1.</source>
        <translation>También este archivo lleva a la versión del catálogo %1.</translation>
    </message>
    <message>
        <source>Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem früheren neuen führt.</source>
        <translation>Elija un mapeo que lleve de la misma versión antigua del catálogo a una nueva anterior.</translation>
    </message>
    <message>
        <source>Übernommen aus %1: dort für den Katalogstand %2 bestätigt</source>
        <translation>Adoptada de %1: confirmada allí para la versión del catálogo %2</translation>
    </message>
    <message>
        <source>Früheres Mapping wird gelesen</source>
        <translation>Leyendo el mapeo anterior</translation>
    </message>
    <message>
        <source>Aus %1 kann nichts übernommen werden.</source>
        <translation>No se puede adoptar nada de %1.</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogstands %1</source>
        <translation>Directorio de la versión del catálogo %1</translation>
    </message>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Buscando proyectos de destino</translation>
    </message>
    <message>
        <source>Entscheidungen werden übernommen</source>
        <translation>Adoptando decisiones</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts übernommen</source>
        <translation>Cancelado, no se adoptó nada</translation>
    </message>
    <message>
        <source>Entscheidungen aus %1 übernommen: %2</source>
        <translation>Decisiones adoptadas de %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher zugeordnet, %4 vorgeschlagen.</source>
        <translation>
            <numerusform>Adoptadas de %1: %2 de %Ln fila confirmada, %3 asignadas con certeza, %4 propuestas.</numerusform>
            <numerusform>Adoptadas de %1: %2 de %Ln filas confirmadas, %3 asignadas con certeza, %4 propuestas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CatalogRootsDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directorio de la versión antigua del catálogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directorio de la versión nueva del catálogo</translation>
    </message>
    <message>
        <source>Katalogverzeichnisse</source>
        <translation>Directorios de catálogos</translation>
    </message>
    <message>
        <source>Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden zusammen mit der Datei gemerkt.</source>
        <translation>¿Dónde están las dos versiones del catálogo de este archivo de mapeo? Los directorios se recuerdan junto con el archivo.</translation>
    </message>
    <message>
        <source>&amp;Alter Stand (%1):</source>
        <translation>&amp;Versión antigua (%1):</translation>
    </message>
    <message>
        <source>&amp;Neuer Stand (%1):</source>
        <translation>Versión &amp;nueva (%1):</translation>
    </message>
    <message>
        <source>Beide Verzeichnisse werden gebraucht.</source>
        <translation>Se necesitan ambos directorios.</translation>
    </message>
    <message>
        <source>%1 ist kein Verzeichnis.</source>
        <translation>%1 no es un directorio.</translation>
    </message>
    <message>
        <source>Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 liegt.</source>
        <translation>En la versión antigua falta %1. Se busca el directorio en el que está el catálogo %2.</translation>
    </message>
    <message>
        <source>Im neuen Stand fehlt der Katalog %1.</source>
        <translation>En la versión nueva falta el catálogo %1.</translation>
    </message>
</context>
<context>
    <name>ConflictCommands</name>
    <message>
        <source>Die Zeile %1 in %2 kann nicht gezeigt werden</source>
        <translation>No se puede mostrar la fila %1 de %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in Konflikt</source>
        <translation>Ninguna fila está en conflicto</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden; nun speichern</source>
        <translation>Todos los conflictos están resueltos; guarde ahora</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2, noch %3 offen</source>
        <translation>Conflicto %1 de %2, aún %3 pendientes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die Entscheidung für alle?</source>
        <translation>
            <numerusform>%Ln fila de %1 se contradice del mismo modo. ¿Vale la decisión para todas?</numerusform>
            <numerusform>%Ln filas de %1 se contradicen del mismo modo. ¿Vale la decisión para todas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Eigene: %1
Andere: %2</source>
        <translation>Propia: %1
Ajena: %2</translation>
    </message>
    <message>
        <source>&amp;Für alle</source>
        <translation>&amp;Para todas</translation>
    </message>
    <message>
        <source>&amp;Zeile für Zeile</source>
        <translation>&amp;Fila por fila</translation>
    </message>
    <message>
        <source>Die Zeile ist in keinem Konflikt</source>
        <translation>La fila no está en ningún conflicto</translation>
    </message>
    <message>
        <source>Die eigene Entscheidung ist nicht bekannt: die Zeile war schon beim Öffnen in Konflikt</source>
        <translation>No se conoce la decisión propia: la fila ya estaba en conflicto al abrir</translation>
    </message>
</context>
<context>
    <name>ConflictDock</name>
    <message>
        <source>Keine Zeile ist in Konflikt.</source>
        <translation>Ninguna fila está en conflicto.</translation>
    </message>
    <message>
        <source>Alle Konflikte sind entschieden.</source>
        <translation>Todos los conflictos están resueltos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) widersprechen sich wie diese.</source>
        <translation>
            <numerusform>%Ln fila más se contradice como esta.</numerusform>
            <numerusform>%Ln filas más se contradicen como esta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflictos</translation>
    </message>
    <message>
        <source>Seiten des Konflikts</source>
        <translation>Partes del conflicto</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Propia</translation>
    </message>
    <message>
        <source>Andere</source>
        <translation>Ajena</translation>
    </message>
    <message>
        <source>Neu entscheiden</source>
        <translation>Decidir de nuevo</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Konflikt(en) noch offen.</source>
        <translation>
            <numerusform>%1 de %Ln conflicto pendiente.</numerusform>
            <numerusform>%1 de %Ln conflictos pendientes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConflictModel</name>
    <message>
        <source>offen</source>
        <translation>pendiente</translation>
    </message>
    <message>
        <source>eigene</source>
        <translation>propia</translation>
    </message>
    <message>
        <source>andere</source>
        <translation>ajena</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>nueva</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Decisión propia</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Decisión ajena</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Vale</translation>
    </message>
</context>
<context>
    <name>ConflictSides</name>
    <message>
        <source>automatisch zugeordnet</source>
        <translation>asignada automáticamente</translation>
    </message>
    <message>
        <source>zu prüfen</source>
        <translation>por comprobar</translation>
    </message>
    <message>
        <source>bestätigt</source>
        <translation>confirmada</translation>
    </message>
    <message>
        <source>ohne Ziel, offen</source>
        <translation>sin destino, abierta</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmada como descatalogada</translation>
    </message>
    <message>
        <source>nicht bekannt</source>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>%1, Zeile %2, %3</source>
        <translation>%1, fila %2, %3</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Proyecto de destino</translation>
    </message>
    <message>
        <source>Zielzeile</source>
        <translation>Fila de destino</translation>
    </message>
    <message>
        <source>Wertebereiche</source>
        <translation>Rangos de valores</translation>
    </message>
</context>
<context>
    <name>ConflictSidesModel</name>
    <message>
        <source>Alte Zeile</source>
        <translation>Fila antigua</translation>
    </message>
    <message>
        <source>Vorher</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Eigene Entscheidung</source>
        <translation>Decisión propia</translation>
    </message>
    <message>
        <source>Andere Entscheidung</source>
        <translation>Decisión ajena</translation>
    </message>
    <message>
        <source>Angabe</source>
        <translation>Dato</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>gleich</source>
        <translation>igual</translation>
    </message>
    <message numerus="yes">
        <source>ersetzt wie in %Ln weiteren Zeile(n)</source>
        <translation>
            <numerusform>sustituido como en %Ln fila más</numerusform>
            <numerusform>sustituido como en %Ln filas más</numerusform>
        </translation>
    </message>
    <message>
        <source>ähnlich</source>
        <translation>parecido</translation>
    </message>
    <message>
        <source>verschieden</source>
        <translation>distinto</translation>
    </message>
    <message>
        <source>nur in der neuen Zeile</source>
        <translation>solo en la fila nueva</translation>
    </message>
    <message>
        <source>nur in der alten Zeile</source>
        <translation>solo en la fila antigua</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Antiguo</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nuevo</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Die Tabelle hat die Zeile nicht.</source>
        <translation>La tabla no tiene la fila.</translation>
    </message>
    <message>
        <source>Ohne Ziel. %1</source>
        <translation>Sin destino. %1</translation>
    </message>
    <message>
        <source>Die zugeordnete Zeile ist keiner der Kandidaten.</source>
        <translation>La fila asignada no es ninguna de las candidatas.</translation>
    </message>
    <message>
        <source>Alt und neu</source>
        <translation>Antiguo y nuevo</translation>
    </message>
    <message>
        <source>Kandidaten</source>
        <translation>Candidatas</translation>
    </message>
    <message>
        <source>Bestätigt.</source>
        <translation>Confirmada.</translation>
    </message>
    <message>
        <source>Sicher zugeordnet.</source>
        <translation>Asignada con certeza.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message>
        <source>verglichen: die ersten %1</source>
        <translation>comparadas: las primeras %1</translation>
    </message>
    <message>
        <source>Keine gemeinsamen Unterschiede.</source>
        <translation>Ninguna diferencia en común.</translation>
    </message>
    <message>
        <source>Gemeinsam: %1</source>
        <translation>En común: %1</translation>
    </message>
    <message>
        <source>Markierte Zeilen</source>
        <translation>Filas seleccionadas</translation>
    </message>
</context>
<context>
    <name>DocumentDesk</name>
    <message>
        <source>Katalogstand</source>
        <translation>Versión del catálogo</translation>
    </message>
    <message>
        <source>Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?</source>
        <translation>El archivo contiene varias versiones del catálogo. ¿Cuál se abre?</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Die Mapping-Datei wird gelesen</source>
        <translation>Leyendo el archivo de mapeo</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>Die Datei ist nur zum Lesen geöffnet.</source>
        <translation>El archivo está abierto solo para lectura.</translation>
    </message>
    <message>
        <source>Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr arbeitet, etwa nach einem Ausfall des Rechners.</source>
        <translation>El bloqueo se puede quitar si con seguridad ya nadie trabaja ahí, por ejemplo tras una avería del equipo.</translation>
    </message>
    <message>
        <source>Nur &amp;lesen</source>
        <translation>&amp;Solo leer</translation>
    </message>
    <message>
        <source>Sperre &amp;aufheben</source>
        <translation>&amp;Quitar el bloqueo</translation>
    </message>
    <message>
        <source>Die Sperre konnte nicht aufgehoben werden.</source>
        <translation>No se pudo quitar el bloqueo.</translation>
    </message>
    <message>
        <source>Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben.</source>
        <translation>No se conocen los catálogos; indíquelos con --source y --target.</translation>
    </message>
    <message>
        <source>Änderungen an %1 speichern?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
    <message>
        <source>Verworfene Änderungen sind verloren.</source>
        <translation>Los cambios descartados se pierden.</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln fila</numerusform>
            <numerusform>%1: %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:</source>
        <translation>
            <numerusform>Aún hay %Ln fila en conflicto, en estos proyectos:</numerusform>
            <numerusform>Aún hay %Ln filas en conflicto, en estos proyectos:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Konflikte zeigen</source>
        <translation>&amp;Mostrar los conflictos</translation>
    </message>
    <message>
        <source>&amp;Trotzdem speichern</source>
        <translation>Guardar de &amp;todos modos</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Die Datei wurde nicht gespeichert.</source>
        <translation>El archivo no se guardó.</translation>
    </message>
    <message>
        <source>Änderungen &amp;zusammenführen</source>
        <translation>Combinar &amp;los cambios</translation>
    </message>
    <message>
        <source>Kopie behalten und &amp;neu schreiben</source>
        <translation>&amp;Conservar una copia y escribir de nuevo</translation>
    </message>
    <message>
        <source>&amp;Eigenen Stand schreiben</source>
        <translation>&amp;Escribir mi versión</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen sind übernommen. Bitte prüfen und dann noch einmal speichern.</source>
        <translation>Los cambios de los demás se han incorporado. Compruébelos y guarde otra vez.</translation>
    </message>
    <message>
        <source>Die Änderungen der anderen konnten nicht übernommen werden.</source>
        <translation>No se pudieron incorporar los cambios de los demás.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei kann nicht angelegt werden.</source>
        <translation>No se puede crear el archivo de mapeo.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 wird gelesen</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen oder die Sicherungskopie %3 zurückkopieren.</source>
        <translation>No se puede leer el archivo de mapeo %1 (%2).
Elija otro archivo o recupere la copia de seguridad %3.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei %1 kann nicht gelesen werden (%2).
Bitte eine andere Datei wählen.</source>
        <translation>No se puede leer el archivo de mapeo %1 (%2).
Elija otro archivo.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand.</source>
        <translation>%1 no contiene ninguna versión.</translation>
    </message>
    <message>
        <source>%1 enthält keinen Stand %2. Vorhanden sind: %3</source>
        <translation>%1 no contiene la versión %2. Hay estas: %3</translation>
    </message>
    <message>
        <source>%1 ist nur zum Lesen geöffnet.</source>
        <translation>%1 está abierto solo para lectura.</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.</source>
        <translation>%2 está editando %1, por eso está abierto solo para lectura.</translation>
    </message>
    <message>
        <source>Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.</source>
        <translation>No se puede escribir en la carpeta de %1 (%2). Por eso el archivo está abierto solo para lectura; guardado con otro nombre se puede editar.</translation>
    </message>
    <message>
        <source>Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald sich die Datei zum Bearbeiten öffnen lässt (%2).</source>
        <translation>De %1 hay trabajo que no se guardó. Se ofrecerá en cuanto el archivo se pueda abrir para editarlo (%2).</translation>
    </message>
    <message>
        <source>%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei unter dem anderen Namen, wie sie war.</source>
        <translation>%1 tiene además otro nombre (enlace duro). Al guardar, el archivo del otro nombre queda como estaba.</translation>
    </message>
    <message>
        <source>%1 wird gespeichert</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>%1 wird gesichert</source>
        <translation>Haciendo copia de seguridad de %1</translation>
    </message>
    <message>
        <source>%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen anderen Namen wählen.</source>
        <translation>%2 está editando %1. No se escribió nada. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte einen anderen Ordner wählen.</source>
        <translation>No se puede crear nada en la carpeta de %1 (%2). No se escribió nada. Elija otra carpeta.</translation>
    </message>
</context>
<context>
    <name>EditorArea</name>
    <message>
        <source>Keine Zeile dieses Projekts ist im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Zeilen zu sehen.</source>
        <translation>Ninguna fila de este proyecto está en el filtro.
Abra «%1» y elija «%2» para volver a ver todas las filas.</translation>
    </message>
    <message>
        <source>Kein Projekt hat eine Zeile im Filter.
„%1“ öffnen und „%2“ wählen, um wieder alle Projekte zu sehen.</source>
        <translation>Ningún proyecto tiene una fila en el filtro.
Abra «%1» y elija «%2» para volver a ver todos los proyectos.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Mapping-Dateien (*.json);;Alle Dateien (*)</source>
        <translation>Archivos de mapeo (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Mapping-Datei öffnen</source>
        <translation>Abrir archivo de mapeo</translation>
    </message>
    <message>
        <source>Mapping-Datei speichern</source>
        <translation>Guardar archivo de mapeo</translation>
    </message>
    <message>
        <source>Tabelle speichern</source>
        <translation>Guardar tabla</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tablas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie wählen</source>
        <translation>Elegir la copia común</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen aus</source>
        <translation>Adoptar decisiones de</translation>
    </message>
</context>
<context>
    <name>FilterCommands</name>
    <message>
        <source>Der Filter ist aufgehoben: das Projekt hat keine Zeile darin</source>
        <translation>El filtro se ha quitado: el proyecto no tiene ninguna fila en él</translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Se llegó al final, se sigue desde el principio</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Se llegó al principio, se sigue desde el final</translation>
    </message>
    <message>
        <source>Keine Zeile ist mehr im Filter</source>
        <translation>No queda ninguna fila en el filtro</translation>
    </message>
</context>
<context>
    <name>FilterDock</name>
    <message>
        <source>ersetzter Text</source>
        <translation>texto sustituido</translation>
    </message>
    <message>
        <source>Zahl umgerechnet</source>
        <translation>número convertido</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Warum offen</source>
        <translation>Por qué está abierta</translation>
    </message>
    <message>
        <source>Art des Unterschieds</source>
        <translation>Tipo de diferencia</translation>
    </message>
    <message>
        <source>Unterschied in der Spalte</source>
        <translation>Diferencia en la columna</translation>
    </message>
    <message>
        <source>Zuletzt entschieden von</source>
        <translation>Última decisión de</translation>
    </message>
    <message>
        <source>niemand</source>
        <translation>nadie</translation>
    </message>
    <message>
        <source>(nichts davon)</source>
        <translation>(nada de esto)</translation>
    </message>
    <message>
        <source>nicht die gewählten</source>
        <translation>no los elegidos</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen...</source>
        <translation>Leyendo las tablas...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>en %Ln proyecto</numerusform>
            <numerusform>en %Ln proyectos</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Filter: alle Zeilen</source>
        <translation>Sin filtro: todas las filas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n) nicht lesbar</source>
        <translation>
            <numerusform>Tablas ilegibles: %Ln</numerusform>
            <numerusform>Tablas ilegibles: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro sobre todas las filas</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Filter au&amp;fheben</source>
        <translation>&amp;Quitar filtro</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Procedencia</translation>
    </message>
    <message>
        <source>aus einem früheren Mapping übernommen</source>
        <translation>adoptadas de un mapeo anterior</translation>
    </message>
</context>
<context>
    <name>GuardedSave</name>
    <message>
        <source>%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. Es wurde nichts geschrieben. Bitte entfernen, was dort steht.</source>
        <translation>%1 no es un archivo normal y por eso no sirve de bloqueo. No se escribió nada. Quite lo que hay ahí.</translation>
    </message>
    <message>
        <source>%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts geschrieben. Bitte gleich noch einmal speichern.</source>
        <translation>Otro programa está guardando %1 en este momento. No se escribió nada. Vuelva a guardar enseguida.</translation>
    </message>
    <message>
        <source>Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>No se puede crear nada en la carpeta de %1 (%2). No se escribió nada. Haga sitio o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>No se puede leer %1 (%2). No se escribió nada. Guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur diesen Stand enthält.</source>
        <translation>%1 no es un archivo de mapeo legible (%2). No se escribió nada. Al guardar, el archivo existente se conserva con un nombre con fecha y hora y se crea uno nuevo que solo contiene esta versión.</translation>
    </message>
    <message>
        <source>%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts geschrieben. Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen Stände kommen aus der Sicherung %3: %4.</source>
        <translation>%1 no es un archivo de mapeo legible (%2). No se escribió nada. Al guardar, el archivo existente se conserva con un nombre con fecha y hora y se crea uno nuevo. Las demás versiones vienen de la copia de seguridad %3: %4.</translation>
    </message>
    <message>
        <source>%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde nichts geschrieben. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 es ilegible y no se pudo conservar como %2 (%3). No se escribió nada. Guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts geschrieben.</source>
        <translation>%1 se borró o se renombró desde que se abrió. Al guardar, el archivo se crea de nuevo y solo contiene esta versión (%2). Aún no se ha escrito nada.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei sind. Es wurde noch nichts geschrieben.</source>
        <translation>Otra persona cambió %1 desde que se abrió, pero no esta versión (%2). Al guardar, las demás versiones quedan como están ahora en el archivo. Aún no se ha escrito nada.</translation>
    </message>
    <message>
        <source>%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern oder die Datei neu öffnen.</source>
        <translation>Otra persona cambió %1 desde que se abrió, también esta versión (%2). Al guardar se pierden sus cambios en esta versión. Aún no se ha escrito nada: guarde de todos modos, guarde con otro nombre o abra de nuevo el archivo.</translation>
    </message>
    <message>
        <source>%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte die Schreibrechte prüfen oder unter einem anderen Namen speichern.</source>
        <translation>No se puede escribir en %1 (%2). No se escribió nada. Compruebe los permisos de escritura o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter einem anderen Namen speichern.</source>
        <translation>%1 no se guardó: %2. El archivo no ha cambiado, los cambios siguen abiertos. Haga sitio y guarde otra vez, o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>die Datei konnte nicht vollständig geschrieben werden</source>
        <translation>el archivo no se pudo escribir por completo</translation>
    </message>
    <message>
        <source>die geschriebene Datei ist nicht lesbar (%1)</source>
        <translation>el archivo escrito no es legible (%1)</translation>
    </message>
    <message>
        <source>die geschriebene Datei enthält nicht, was gespeichert werden sollte</source>
        <translation>el archivo escrito no contiene lo que se debía guardar</translation>
    </message>
    <message>
        <source>in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer</source>
        <translation>en el archivo escrito falta la versión %1, o es otra</translation>
    </message>
    <message>
        <source>Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.</source>
        <translation>No se pudo crear la copia de seguridad %1 (%2). No se escribió nada. Haga sitio o guarde con otro nombre.</translation>
    </message>
    <message>
        <source>%1 wurde während des Speicherns von jemand anderem geändert. Es wurde nichts geschrieben. Bitte noch einmal speichern.</source>
        <translation>Otra persona cambió %1 mientras se guardaba. No se escribió nada. Guarde otra vez.</translation>
    </message>
    <message>
        <source>%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.</source>
        <translation>%1 no se guardó: %2. El archivo no ha cambiado, los cambios siguen abiertos. Guarde con otro nombre.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Auf der Seite suchen</source>
        <translation>Buscar en la página</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>&amp;Verlauf der Entscheidungen...</source>
        <translation>&amp;Historial de las decisiones...</translation>
    </message>
    <message>
        <source>Wer hat was entschieden, wann und warum</source>
        <translation>Quién decidió qué, cuándo y por qué</translation>
    </message>
    <message>
        <source>Gr&amp;und der Entscheidung...</source>
        <translation>&amp;Motivo de la decisión...</translation>
    </message>
    <message>
        <source>Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen Nachfolger gibt</source>
        <translation>Para la última decisión o para las filas seleccionadas, por ejemplo por qué no hay sucesora</translation>
    </message>
    <message>
        <source>Zeile %1 in %2</source>
        <translation>Fila %1 en %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1</source>
        <translation>
            <numerusform>%Ln fila en %1</numerusform>
            <numerusform>%Ln filas en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Grund notiert: %1</source>
        <translation>Motivo anotado: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Verlauf der Entscheidungen</source>
        <translation>Historial de las decisiones</translation>
    </message>
    <message>
        <source>Gewählte Zeile</source>
        <translation>Fila seleccionada</translation>
    </message>
    <message>
        <source>Gewähltes Projekt</source>
        <translation>Proyecto seleccionado</translation>
    </message>
    <message>
        <source>Alle Projekte</source>
        <translation>Todos los proyectos</translation>
    </message>
    <message>
        <source>Wer, Projekt, Ziel oder Grund suchen</source>
        <translation>Buscar quién, proyecto, destino o motivo</translation>
    </message>
    <message>
        <source>&amp;Neu lesen</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
    <message>
        <source>Als &amp;CSV speichern...</source>
        <translation>&amp;Guardar como CSV...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Nicht lesbare Zeilen des Journals: %1</source>
        <translation>Líneas ilegibles del diario: %1</translation>
    </message>
    <message>
        <source>Entscheidungen: %1</source>
        <translation>Decisiones: %1</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geschrieben werden.</source>
        <translation>No se puede escribir el archivo.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>kein Nachfolger</source>
        <translation>sin sucesora</translation>
    </message>
    <message>
        <source>%1 (nicht gespeichert)</source>
        <translation>%1 (sin guardar)</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quién</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Bisher</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Übernommen aus %1</source>
        <translation>Adoptada de %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Ordner mit CSV-Dateien</source>
        <translation>Carpeta con archivos CSV</translation>
    </message>
    <message>
        <source>Verzeichnis des Katalogs</source>
        <translation>Directorio del catálogo</translation>
    </message>
    <message>
        <source>Tabellen importieren</source>
        <translation>Importar tablas</translation>
    </message>
    <message>
        <source>&amp;Ordner mit CSV-Dateien:</source>
        <translation>&amp;Carpeta con archivos CSV:</translation>
    </message>
    <message>
        <source>&amp;Verzeichnis des Katalogs:</source>
        <translation>&amp;Directorio del catálogo:</translation>
    </message>
    <message>
        <source>Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben Ort im Katalog. Wer die Tabellen wieder importiert, behält die Nummern der Zeilen.</source>
        <translation>De cada archivo CSV se hace un proyecto con su tabla en el mismo lugar del catálogo. Quien importa de nuevo las tablas conserva los números de las filas.</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Der Ordner mit den CSV-Dateien fehlt.</source>
        <translation>Falta la carpeta con los archivos CSV.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis darüber gibt.</source>
        <translation>Falta el directorio del catálogo; se crea si existe el directorio superior.</translation>
    </message>
    <message>
        <source>Ein Verzeichnis liegt im anderen.</source>
        <translation>Un directorio está dentro del otro.</translation>
    </message>
</context>
<context>
    <name>KeyedActions</name>
    <message>
        <source>Zeile bestätigen oder gewählte Zeile zuordnen</source>
        <translation>Confirmar la fila o asignar la fila seleccionada</translation>
    </message>
    <message>
        <source>Zuordnung der Zeile aufheben</source>
        <translation>Quitar la asignación de la fila</translation>
    </message>
    <message>
        <source>Zuordnung aufheben und als ausgelaufen bestätigen</source>
        <translation>Quitar la asignación y confirmar como descatalogada</translation>
    </message>
    <message>
        <source>Wertebereichszuordnung bearbeiten</source>
        <translation>Editar la asignación de rangos de valores</translation>
    </message>
    <message>
        <source>Bedingung aus der Zeile kopieren</source>
        <translation>Copiar la condición de la fila</translation>
    </message>
    <message>
        <source>Ganzes Projekt bestätigen</source>
        <translation>Confirmar todo el proyecto</translation>
    </message>
    <message>
        <source>In der Tabelle suchen</source>
        <translation>Buscar en la tabla</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Rückwärts weitersuchen</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Spaltenfilter</source>
        <translation>Filtro de columna</translation>
    </message>
    <message>
        <source>Zeilen kopieren</source>
        <translation>Copiar filas</translation>
    </message>
    <message>
        <source>Tabelle größer</source>
        <translation>Tabla más grande</translation>
    </message>
    <message>
        <source>Tabelle kleiner</source>
        <translation>Tabla más pequeña</translation>
    </message>
    <message>
        <source>Tabelle in normaler Größe</source>
        <translation>Tabla en tamaño normal</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Predeterminada</translation>
    </message>
    <message>
        <source>&amp;Keine Taste</source>
        <translation>&amp;Ninguna tecla</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Befehl oder Taste</source>
        <translation>Comando o tecla</translation>
    </message>
    <message>
        <source>Befehle</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Wo</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>Taste</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Fenster</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Taste für %1</source>
        <translation>Tecla para %1</translation>
    </message>
    <message>
        <source>Die Taste %1 brauchen Felder und Listen selbst.</source>
        <translation>Los campos y las listas necesitan ellos mismos la tecla %1.</translation>
    </message>
    <message>
        <source>Die Taste %1 hätten %2 und %3.</source>
        <translation>La tecla %1 la tendrían %2 y %3.</translation>
    </message>
    <message>
        <source>Selbst gewählt</source>
        <translation>Elegida por usted</translation>
    </message>
    <message>
        <source>%1 hat die Taste %2 dann nicht mehr.</source>
        <translation>%1 dejará entonces de tener la tecla %2.</translation>
    </message>
    <message>
        <source>Die Taste %1 hat jetzt %2.</source>
        <translation>La tecla %1 la tiene ahora %2.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>No se encontró nada</translation>
    </message>
</context>
<context>
    <name>LegendDialog</name>
    <message>
        <source>Bestätigt: die Zuordnung ist entschieden</source>
        <translation>Confirmada: la asignación está decidida</translation>
    </message>
    <message>
        <source>Vorschlag: muss bestätigt oder korrigiert werden</source>
        <translation>Propuesta: hay que confirmarla o corregirla</translation>
    </message>
    <message>
        <source>Ohne Bild: eindeutig gleich, vom Programm zugeordnet</source>
        <translation>Sin icono: inequívocamente igual, asignada por el programa</translation>
    </message>
    <message>
        <source>Keine Zuordnung gefunden</source>
        <translation>No se encontró asignación</translation>
    </message>
    <message>
        <source>Ausgelaufen: bestätigt, dass es keine Zuordnung gibt</source>
        <translation>Descatalogada: confirmado que no hay asignación</translation>
    </message>
    <message>
        <source>Konflikt mit der Änderung eines anderen</source>
        <translation>Conflicto con el cambio de otra persona</translation>
    </message>
    <message>
        <source>Projekt oder Tabelle kann nicht gelesen werden</source>
        <translation>No se puede leer el proyecto o la tabla</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen der Zeile</source>
        <translation>Asignaciones de rangos de valores de la fila</translation>
    </message>
    <message>
        <source>In der Zieltabelle: die zugeordnete Zeile</source>
        <translation>En la tabla de destino: la fila asignada</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Leyenda</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>LineCommands</name>
    <message>
        <source>Bedingung in die Zwischenablage kopiert</source>
        <translation>Condición copiada al portapapeles</translation>
    </message>
    <message>
        <source>Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, ist ein Bereich oder enthält ein Anführungszeichen: %1</source>
        <translation>La condición copiada aún no se puede usar así: falta un valor, es un rango o contiene comillas: %1</translation>
    </message>
    <message numerus="yes">
        <source>Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.</source>
        <translation>
            <numerusform>Aquí, dentro del filtro, está todo hecho; fuera queda aún %Ln fila abierta.</numerusform>
            <numerusform>Aquí, dentro del filtro, está todo hecho; fuera quedan aún %Ln filas abiertas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Am Ende angekommen, weiter von vorn</source>
        <translation>Se llegó al final, se sigue desde el principio</translation>
    </message>
    <message>
        <source>Am Anfang angekommen, weiter von hinten</source>
        <translation>Se llegó al principio, se sigue desde el final</translation>
    </message>
    <message>
        <source>Konflikt %1 von %2</source>
        <translation>Conflicto %1 de %2</translation>
    </message>
    <message>
        <source>Keine Zeile ist in einem der gewählten Zustände</source>
        <translation>Ninguna fila está en uno de los estados elegidos</translation>
    </message>
    <message>
        <source>Keine Zeile braucht mehr eine Entscheidung</source>
        <translation>Ninguna fila necesita ya una decisión</translation>
    </message>
    <message>
        <source>Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen</source>
        <translation>No se puede mostrar ninguna de las filas abiertas; faltan sus tablas</translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Ir a la fila</translation>
    </message>
    <message>
        <source>Nummer oder Normbezeichnung:</source>
        <translation>Número o designación normalizada:</translation>
    </message>
    <message>
        <source>Gehe zu</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>Es ist kein Projekt gewählt</source>
        <translation>No hay ningún proyecto seleccionado</translation>
    </message>
    <message>
        <source>Keine Zeile mit „%1“ in diesem Projekt</source>
        <translation>No hay ninguna fila con «%1» en este proyecto</translation>
    </message>
    <message>
        <source>Treffer %1 von %2</source>
        <translation>Resultado %1 de %2</translation>
    </message>
    <message>
        <source>&amp;Ausführen</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>El paso se puede deshacer.</translation>
    </message>
    <message>
        <source>Gemeint sind die markierten Zeilen.</source>
        <translation>Se trata de las filas seleccionadas.</translation>
    </message>
    <message>
        <source>Gemeint sind alle Zeilen des Projekts.</source>
        <translation>Se trata de todas las filas del proyecto.</translation>
    </message>
    <message>
        <source>Filter: %1.</source>
        <translation>Filtro: %1.</translation>
    </message>
    <message>
        <source>Kein anderes Projekt hat solche Zeilen</source>
        <translation>Ningún otro proyecto tiene filas así</translation>
    </message>
    <message>
        <source>Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.</source>
        <translation>Se trata solo de las filas mostradas del proyecto: %1 de %2.</translation>
    </message>
</context>
<context>
    <name>LineStateFilter</name>
    <message>
        <source>Konflikt</source>
        <translation>Conflicto</translation>
    </message>
    <message>
        <source>Nur Zeilen im Konflikt mit der Änderung eines anderen zeigen, und ihre Projekte</source>
        <translation>Mostrar solo las filas en conflicto con el cambio de otra persona, y sus proyectos</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Por comprobar</translation>
    </message>
    <message>
        <source>Nur Zeilen mit einem Vorschlag zeigen, der bestätigt oder korrigiert werden muss, und ihre Projekte</source>
        <translation>Mostrar solo las filas con una propuesta que hay que confirmar o corregir, y sus proyectos</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sin destino</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, für die nichts gefunden ist, und ihre Projekte</source>
        <translation>Mostrar solo las filas para las que no se encontró nada, y sus proyectos</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die eindeutig gleich sind und vom Programm zugeordnet wurden, und ihre Projekte</source>
        <translation>Mostrar solo las filas inequívocamente iguales que asignó el programa, y sus proyectos</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Nur Zeilen mit bestätigter Zuordnung zeigen, und ihre Projekte</source>
        <translation>Mostrar solo las filas con asignación confirmada, y sus proyectos</translation>
    </message>
    <message>
        <source>Ausgelaufen</source>
        <translation>Descatalogada</translation>
    </message>
    <message>
        <source>Nur Zeilen zeigen, die als ausgelaufen bestätigt sind, und ihre Projekte</source>
        <translation>Mostrar solo las filas confirmadas como descatalogadas, y sus proyectos</translation>
    </message>
</context>
<context>
    <name>LinkDbBox</name>
    <message>
        <source>&amp;Linkdatenbank verwenden</source>
        <translation>&amp;Usar base de enlaces</translation>
    </message>
    <message>
        <source>Datei auf diesem Rechner</source>
        <translation>Archivo en este equipo</translation>
    </message>
    <message>
        <source>PostgreSQL-Server</source>
        <translation>Servidor PostgreSQL</translation>
    </message>
    <message>
        <source>der übliche</source>
        <translation>el habitual</translation>
    </message>
    <message>
        <source>Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. Gespeichert wird es nicht.</source>
        <translation>La contraseña está en el archivo de contraseñas, en el almacén de claves del escritorio o en PGPASSWORD, o se introduce al iniciar sesión. No se guarda.</translation>
    </message>
    <message>
        <source>wenn möglich</source>
        <translation>si es posible</translation>
    </message>
    <message>
        <source>immer</source>
        <translation>siempre</translation>
    </message>
    <message>
        <source>immer, Server geprüft</source>
        <translation>siempre, servidor comprobado</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Art:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message>
        <source>Rec&amp;hner:</source>
        <translation>&amp;Equipo:</translation>
    </message>
    <message>
        <source>&amp;Anschluss:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>Daten&amp;bank:</source>
        <translation>&amp;Base de datos:</translation>
    </message>
    <message>
        <source>Ben&amp;utzer:</source>
        <translation>U&amp;suario:</translation>
    </message>
    <message>
        <source>Verschlüsselun&amp;g:</source>
        <translation>&amp;Cifrado:</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datei fehlt.</source>
        <translation>Base de enlaces: falta el nombre del archivo.</translation>
    </message>
    <message>
        <source>Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.</source>
        <translation>Base de enlaces: falta el nombre de la base de datos o no es válido.</translation>
    </message>
</context>
<context>
    <name>LinkDbCommands</name>
    <message>
        <source>&amp;Nummern der Linkdatenbank prüfen</source>
        <translation>&amp;Comprobar los números de la base de enlaces</translation>
    </message>
    <message>
        <source>In der Linkdatenbank gibt es keine Gruppe, zu der Sie gehören.</source>
        <translation>En la base de enlaces no hay ningún grupo al que usted pertenezca.</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Seleccionar grupo</translation>
    </message>
    <message>
        <source>Gruppe der Linkdatenbank:</source>
        <translation>Grupo de la base de enlaces:</translation>
    </message>
    <message>
        <source>Zeile %1 von %2 steht nicht in diesem Mapping.</source>
        <translation>La fila %1 de %2 no está en este mapeo.</translation>
    </message>
    <message>
        <source>Nummern der Linkdatenbank werden geprüft</source>
        <translation>Comprobando los números de la base de enlaces</translation>
    </message>
    <message>
        <source>Die Nummern konnten nicht geprüft werden.</source>
        <translation>No se pudieron comprobar los números.</translation>
    </message>
    <message>
        <source>Änderungen in der Linkdatenbank sind vielleicht verloren.</source>
        <translation>Quizá se hayan perdido cambios en la base de enlaces.</translation>
    </message>
</context>
<context>
    <name>LinkDbHost</name>
    <message>
        <source>Für die Linkdatenbank fehlt die Lizenz.</source>
        <translation>Falta la licencia para la base de enlaces.</translation>
    </message>
</context>
<context>
    <name>LinkDbLoginDialog</name>
    <message>
        <source>Anmeldung an der Linkdatenbank</source>
        <translation>Inicio de sesión en la base de enlaces</translation>
    </message>
    <message>
        <source>Das Kennwort gilt bis zum Ende des Programms und wird nicht gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.</source>
        <translation>La contraseña vale hasta que termine el programa y no se guarda. Si queda vacía, se toma del archivo de contraseñas.</translation>
    </message>
    <message>
        <source>Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.</source>
        <translation>Con este nombre consta en el registro quién borró algo.</translation>
    </message>
</context>
<context>
    <name>LinkListDialog</name>
    <message>
        <source>Linkmanager</source>
        <translation>Gestor de enlaces</translation>
    </message>
    <message>
        <source>Nummer, Projekt oder Bezeichnung suchen</source>
        <translation>Buscar número, proyecto o descripción</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Zeile &amp;zeigen</source>
        <translation>&amp;Mostrar fila</translation>
    </message>
    <message>
        <source>Mit anderer Zeile &amp;verknüpfen...</source>
        <translation>&amp;Enlazar con otra fila...</translation>
    </message>
    <message>
        <source>Wählen Sie danach Projekt und Zeile und senden Sie die Auswahl mit &quot;Auswahl an Linkmanager&quot;.</source>
        <translation>Elija después proyecto y fila y envíe la selección con «Selección al gestor de enlaces».</translation>
    </message>
    <message>
        <source>Zuletzt &amp;Gelöschtes...</source>
        <translation>Lo último &amp;borrado...</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Enlaces: %1</translation>
    </message>
    <message>
        <source>Es ist nichts gelöscht, was wiederhergestellt werden könnte.</source>
        <translation>No hay nada borrado que se pudiera restaurar.</translation>
    </message>
    <message>
        <source>Zuletzt Gelöschtes wiederherstellen? Zeilen: %1</source>
        <translation>¿Restaurar lo último borrado? Filas: %1</translation>
    </message>
    <message>
        <source>%1 hat sie am %2 aus %3 gelöscht.</source>
        <translation>%1 las borró el %2 de %3.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %Ln Link(s); die Suche zeigt andere.</source>
        <translation>
            <numerusform>El primer enlace (%Ln); la búsqueda muestra otros.</numerusform>
            <numerusform>Los primeros %Ln enlaces; la búsqueda muestra otros.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LinkProofDialog</name>
    <message>
        <source>Prüfung der Nummern</source>
        <translation>Comprobación de los números</translation>
    </message>
    <message>
        <source>Nummer</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Befund</source>
        <translation>Hallazgo</translation>
    </message>
    <message>
        <source>Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2</source>
        <translation>Números en proyectos de este mapeo: %1, en otros proyectos: %2</translation>
    </message>
    <message>
        <source>Nicht verglichen, da nicht lesbar: %1</source>
        <translation>No comparados por ilegibles: %1</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Zeile ausgelaufen oder nicht da</source>
        <translation>Fila descatalogada o inexistente</translation>
    </message>
    <message>
        <source>als ausgelaufen bestätigt</source>
        <translation>confirmada como descatalogada</translation>
    </message>
    <message>
        <source>das Projekt hat sie nicht</source>
        <translation>el proyecto no la tiene</translation>
    </message>
    <message>
        <source>Von mehreren Zeilen beansprucht</source>
        <translation>Reclamado por varias filas</translation>
    </message>
    <message>
        <source>Teil weicht ab</source>
        <translation>La pieza difiere</translation>
    </message>
    <message>
        <source>Teil weicht ab (nicht verglichen)</source>
        <translation>La pieza difiere (no comparada)</translation>
    </message>
    <message>
        <source>Offene Zeilen mit Nummern</source>
        <translation>Filas abiertas con números</translation>
    </message>
    <message>
        <source>Nummern: %1</source>
        <translation>Números: %1</translation>
    </message>
</context>
<context>
    <name>LocatorDesk</name>
    <message>
        <source>Die Zeile %1 gibt es in %2 nicht.</source>
        <translation>La fila %1 no existe en %2.</translation>
    </message>
    <message>
        <source>Das Projekt %1 kann nicht gezeigt werden.</source>
        <translation>No se puede mostrar el proyecto %1.</translation>
    </message>
</context>
<context>
    <name>LocatorDialog</name>
    <message>
        <source>Finden</source>
        <translation>Encontrar</translation>
    </message>
    <message>
        <source>Projekt, Zeile, Befehl oder Einstellung</source>
        <translation>Proyecto, fila, comando o ajuste</translation>
    </message>
    <message>
        <source>Gefunden</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile.</source>
        <translation>Bastan partes de las palabras; un número detrás indica una fila.</translation>
    </message>
    <message>
        <source>Nichts gefunden</source>
        <translation>No se encontró nada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Treffer</source>
        <translation>
            <numerusform>%Ln resultado</numerusform>
            <numerusform>%Ln resultados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die ersten %1 von %Ln Treffer(n)</source>
        <translation>
            <numerusform>Los primeros %1 de %Ln resultado</numerusform>
            <numerusform>Los primeros %1 de %Ln resultados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LocatorModel</name>
    <message>
        <source>Zeile %1</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Befehl</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Einstellung</source>
        <translation>Ajuste</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Fehler: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>Warnung: </source>
        <translation>Advertencia: </translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Meldungen löschen</source>
        <translation>Borrar los mensajes</translation>
    </message>
    <message>
        <source>Alle Meldungen kopieren</source>
        <translation>Copiar todos los mensajes</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>&amp;Benutzer:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>&amp;Kennwort:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Keine Verbindung zur Linkdatenbank: %1</source>
        <translation>Sin conexión con la base de enlaces: %1</translation>
    </message>
    <message>
        <source>Die ERP-Nummern können nicht gelesen werden. %1</source>
        <translation>No se pueden leer los números ERP. %1</translation>
    </message>
    <message>
        <source>Zeilen neu zugeordnet: keine Änderung</source>
        <translation>Filas asignadas de nuevo: ningún cambio</translation>
    </message>
    <message>
        <source>Hier ist keine solche Zeile. %1 geht zur nächsten.</source>
        <translation>Aquí no hay ninguna fila así. %1 va a la siguiente.</translation>
    </message>
    <message>
        <source>schreibgeschützt</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>Der Katalog</source>
        <translation>El catálogo</translation>
    </message>
    <message>
        <source>Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu entscheiden ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.</source>
        <translation>A la izquierda está la versión antigua del catálogo. Los iconos muestran dónde queda algo por decidir. Seleccione un proyecto para ver sus filas.</translation>
    </message>
    <message>
        <source>Die Ziele</source>
        <translation>Los destinos</translation>
    </message>
    <message>
        <source>Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit Bedingungen und Variablenzuordnungen.</source>
        <translation>Aquí están los proyectos de la versión nueva que pueden recibir filas, con condiciones y correspondencias de variables.</translation>
    </message>
    <message>
        <source>Die Zeilen</source>
        <translation>Las filas</translation>
    </message>
    <message>
        <source>Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile ausgelaufen ist.</source>
        <translation>A la izquierda la tabla antigua, a la derecha la nueva. %1 confirma la asignación o asigna la fila seleccionada a la derecha, %2 la quita, %3 confirma que la fila está descatalogada.</translation>
    </message>
    <message>
        <source>Was noch offen ist</source>
        <translation>Lo que sigue abierto</translation>
    </message>
    <message>
        <source>Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur nächsten, auch im nächsten Projekt.</source>
        <translation>El contador indica cuántas filas necesitan una decisión. %1 va a la siguiente, también en el siguiente proyecto.</translation>
    </message>
    <message>
        <source>Nichts geht verloren</source>
        <translation>Nada se pierde</translation>
    </message>
    <message>
        <source>Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü Hilfe.</source>
        <translation>Cada paso se puede deshacer. Tras un fallo, el programa ofrece recuperar lo que no se guardó. El recorrido está en el menú Ayuda.</translation>
    </message>
    <message>
        <source>Zeilen des ganzen Katalogs zuordnen?</source>
        <translation>¿Asignar las filas de todo el catálogo?</translation>
    </message>
    <message>
        <source>Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen werden.</source>
        <translation>Lo confirmado se queda en todo caso. El paso se puede deshacer.</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen ohne Zuordnung</source>
        <translation>&amp;Solo filas sin asignación</translation>
    </message>
    <message>
        <source>Alles &amp;Unbestätigte neu</source>
        <translation>&amp;Todo lo no confirmado de nuevo</translation>
    </message>
    <message>
        <source>Alle Projekte zugeordnet</source>
        <translation>Asignados todos los proyectos</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 gibt es nicht.</source>
        <translation>El proyecto de destino %1 no existe.</translation>
    </message>
    <message>
        <source>Zielprojekt: %1</source>
        <translation>Proyecto de destino: %1</translation>
    </message>
    <message>
        <source>Einstellungen: %1</source>
        <translation>Ajustes: %1</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es keinen Hinweis</source>
        <translation>No hay ninguna indicación para este lugar</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Vaciar lista</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Teilen</source>
        <translation>&amp;Compartir</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>&amp;Abiertos recientemente</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Gehe zu</source>
        <translation>&amp;Ir a</translation>
    </message>
    <message>
        <source>&amp;Prüfen</source>
        <translation>&amp;Revisar</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Nur &amp;Zeilen</source>
        <translation>&amp;Solo filas</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>Ayu&amp;da</translation>
    </message>
    <message>
        <source>Linkdatenbank</source>
        <translation>Base de enlaces</translation>
    </message>
    <message>
        <source>Zustände der Zeilen</source>
        <translation>Estados de las filas</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Herramientas</translation>
    </message>
</context>
<context>
    <name>MappingDocument</name>
    <message>
        <source>Es ist keine Datei zum Bearbeiten geöffnet.</source>
        <translation>No hay ningún archivo abierto para editar.</translation>
    </message>
    <message>
        <source>Eigene Änderungen auf dem Stand der Datei</source>
        <translation>Cambios propios sobre la versión del archivo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): eigene Entscheidung</source>
        <translation>
            <numerusform>%Ln conflicto: decisión propia</numerusform>
            <numerusform>%Ln conflictos: decisión propia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): Entscheidung der anderen Seite</source>
        <translation>
            <numerusform>%Ln conflicto: decisión de la otra parte</numerusform>
            <numerusform>%Ln conflictos: decisión de la otra parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Konflikt(e): neu zu entscheiden</source>
        <translation>
            <numerusform>%Ln conflicto: por decidir de nuevo</numerusform>
            <numerusform>%Ln conflictos: por decidir de nuevo</numerusform>
        </translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht geschrieben werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte bald speichern.</source>
        <translation>No se puede escribir el diario %1 (%2). Tras un fallo se perderían los cambios: guarde pronto.</translation>
    </message>
    <message>
        <source>Der wiederhergestellte Stand kann nicht gesichert werden (%1). Bitte Platz schaffen und noch einmal öffnen; das Journal ist unverändert.</source>
        <translation>No se puede asegurar la versión recuperada (%1). Haga sitio y abra otra vez; el diario no ha cambiado.</translation>
    </message>
    <message>
        <source>Wiederherstellung nach einem Absturz</source>
        <translation>Recuperación tras un fallo</translation>
    </message>
    <message>
        <source>Das Journal %1 kann nicht angelegt werden (%2). Nach einem Absturz wären die Änderungen verloren: bitte oft speichern.</source>
        <translation>No se puede crear el diario %1 (%2). Tras un fallo se perderían los cambios: guarde a menudo.</translation>
    </message>
    <message>
        <source>Es ist keine Mapping-Datei geöffnet.</source>
        <translation>No hay ningún archivo de mapeo abierto.</translation>
    </message>
    <message>
        <source>Es wird gerade gespeichert.</source>
        <translation>Se está guardando en este momento.</translation>
    </message>
    <message>
        <source>Es wurde nicht gespeichert. %1 Bitte unter einem anderen Namen speichern.</source>
        <translation>No se guardó. %1 Guarde con otro nombre.</translation>
    </message>
    <message>
        <source>Die Sperre von %1 ist verloren und kann nicht erneuert werden. Andere könnten die Datei gleichzeitig bearbeiten.</source>
        <translation>El bloqueo de %1 se ha perdido y no se puede renovar. Otros podrían editar el archivo al mismo tiempo.</translation>
    </message>
    <message>
        <source>Die automatische Sicherung ist nicht gelungen (%1). Bitte bald speichern.</source>
        <translation>El guardado automático no funcionó (%1). Guarde pronto.</translation>
    </message>
    <message>
        <source>Die Änderung wurde nicht übernommen. %1</source>
        <translation>El cambio no se aplicó. %1</translation>
    </message>
    <message>
        <source>Konflikte markiert</source>
        <translation>Conflictos marcados</translation>
    </message>
    <message>
        <source>Rückgängig: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste der Schritte sagt, was entgegensteht.</source>
        <translation>«%1» ya no encaja con lo que se cambió después. La lista de pasos dice qué lo impide.</translation>
    </message>
</context>
<context>
    <name>MappingMaker</name>
    <message>
        <source>Zielprojekte werden gesucht</source>
        <translation>Buscando proyectos de destino</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts angelegt</source>
        <translation>Cancelado, no se creó nada</translation>
    </message>
    <message>
        <source>Zeilen werden zugeordnet</source>
        <translation>Asignando filas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, %5 unlesbar</source>
        <translation>
            <numerusform>%Ln proyecto: %1 en el mismo lugar, %2 en otro, %3 dividido, %4 sin destino, %5 ilegible</numerusform>
            <numerusform>%Ln proyectos: %1 en el mismo lugar, %2 en otro, %3 divididos, %4 sin destino, %5 ilegibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 de %Ln proyecto</numerusform>
            <numerusform>%1 de %Ln proyectos</numerusform>
        </translation>
    </message>
    <message>
        <source>davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel</source>
        <translation>de ellas %1 asignadas, %2 por comprobar, %3 sin destino</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln fila</numerusform>
            <numerusform>%1 con %Ln filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeState</name>
    <message numerus="yes">
        <source>%Ln Änderung(en) übernommen.</source>
        <translation>
            <numerusform>%Ln cambio incorporado.</numerusform>
            <numerusform>%Ln cambios incorporados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) haben beide gleich entschieden.</source>
        <translation>
            <numerusform>%Ln fila la decidieron ambas partes igual.</numerusform>
            <numerusform>%Ln filas las decidieron ambas partes igual.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind verschieden entschieden und als Konflikt markiert.</source>
        <translation>
            <numerusform>%Ln fila se decidió de forma distinta y está marcada como conflicto.</numerusform>
            <numerusform>%Ln filas se decidieron de forma distinta y están marcadas como conflicto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln andere(r) Widerspruch/Widersprüche: Der Stand der Datei gilt.</source>
        <translation>
            <numerusform>%Ln otra contradicción: vale la versión del archivo.</numerusform>
            <numerusform>%Ln otras contradicciones: vale la versión del archivo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NeighbourCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>No se puede mostrar la fila %1</translation>
    </message>
    <message>
        <source>Es ist keine Fundstelle gewählt</source>
        <translation>No hay ningún hallazgo seleccionado</translation>
    </message>
    <message>
        <source>Behoben: %1 in %2</source>
        <translation>Corregido: %1 en %2</translation>
    </message>
</context>
<context>
    <name>NeighbourDock</name>
    <message>
        <source>Die Tabellen werden verglichen</source>
        <translation>Se están comparando las tablas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zugeordnete Zeile(n) angesehen</source>
        <translation>
            <numerusform>%Ln fila asignada revisada</numerusform>
            <numerusform>%Ln filas asignadas revisadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Fundstelle(n)</source>
        <translation>
            <numerusform>%Ln hallazgo</numerusform>
            <numerusform>%Ln hallazgos</numerusform>
        </translation>
    </message>
    <message>
        <source>Nachbarschaft</source>
        <translation>Vecindad</translation>
    </message>
</context>
<context>
    <name>NeighbourModel</name>
    <message>
        <source>Zeilen %1 bis %2 sind um %3 verschoben</source>
        <translation>Las filas %1 a %2 están desplazadas en %3</translation>
    </message>
    <message>
        <source>Zeilen %1 und %2 sind vertauscht</source>
        <translation>Las filas %1 y %2 están intercambiadas</translation>
    </message>
    <message>
        <source>Zeile %1 liegt um %2 daneben</source>
        <translation>La fila %1 está desviada en %2</translation>
    </message>
    <message>
        <source>Zeile %1 hat die Zielzeile einer anderen</source>
        <translation>La fila %1 tiene la fila de destino de otra</translation>
    </message>
    <message>
        <source>Zeile %1 ist übersprungen</source>
        <translation>La fila %1 está saltada</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>pendiente</translation>
    </message>
    <message>
        <source>Behoben: %1</source>
        <translation>Corregido: %1</translation>
    </message>
    <message>
        <source>Fund</source>
        <translation>Hallazgo</translation>
    </message>
    <message>
        <source>Behoben</source>
        <translation>Corregido</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
</context>
<context>
    <name>NewMappingDialog</name>
    <message>
        <source>Verzeichnis des alten Katalogstands</source>
        <translation>Directorio de la versión antigua del catálogo</translation>
    </message>
    <message>
        <source>Verzeichnis des neuen Katalogstands</source>
        <translation>Directorio de la versión nueva del catálogo</translation>
    </message>
    <message>
        <source>&amp;Zeilen gleich zuordnen</source>
        <translation>Asignar &amp;las filas enseguida</translation>
    </message>
    <message>
        <source>Neues Mapping</source>
        <translation>Nuevo mapeo</translation>
    </message>
    <message>
        <source>&amp;Alter Katalogstand:</source>
        <translation>&amp;Versión antigua del catálogo:</translation>
    </message>
    <message>
        <source>Katalog darin:</source>
        <translation>Catálogo en él:</translation>
    </message>
    <message>
        <source>&amp;Neuer Katalogstand:</source>
        <translation>Versión &amp;nueva del catálogo:</translation>
    </message>
    <message>
        <source>Mapping-Datei wählen</source>
        <translation>Elegir archivo de mapeo</translation>
    </message>
    <message>
        <source>&amp;Mapping-Datei:</source>
        <translation>&amp;Archivo de mapeo:</translation>
    </message>
    <message>
        <source>An&amp;legen</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>Das Verzeichnis des alten Katalogstands fehlt.</source>
        <translation>Falta el directorio de la versión antigua del catálogo.</translation>
    </message>
    <message>
        <source>Das Verzeichnis des neuen Katalogstands fehlt.</source>
        <translation>Falta el directorio de la versión nueva del catálogo.</translation>
    </message>
    <message>
        <source>Jeder Stand braucht ein Verzeichnis mit dem Katalog.</source>
        <translation>Cada versión necesita un directorio con el catálogo.</translation>
    </message>
    <message>
        <source>Die Mapping-Datei braucht einen Namen.</source>
        <translation>El archivo de mapeo necesita un nombre.</translation>
    </message>
    <message>
        <source>Das Verzeichnis %1 gibt es nicht.</source>
        <translation>El directorio %1 no existe.</translation>
    </message>
    <message>
        <source>%1 gibt es schon.</source>
        <translation>%1 ya existe.</translation>
    </message>
    <message>
        <source>Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum wird ersetzt, mit allem, was darin bestätigt ist.</source>
        <translation>Al guardar se añade la nueva versión; una versión de la misma fecha se sustituye, con todo lo que está confirmado en ella.</translation>
    </message>
    <message>
        <source>&amp;Diese Datei verwenden</source>
        <translation>&amp;Usar este archivo</translation>
    </message>
</context>
<context>
    <name>OwnFileTexts</name>
    <message>
        <source>der Datenträger ist voll</source>
        <translation>el soporte está lleno</translation>
    </message>
    <message>
        <source>die Datei wird größer, als hier erlaubt ist</source>
        <translation>el archivo sería más grande de lo que aquí se permite</translation>
    </message>
    <message>
        <source>das Schreibrecht fehlt</source>
        <translation>falta el permiso de escritura</translation>
    </message>
    <message>
        <source>der Datenträger ist schreibgeschützt</source>
        <translation>el soporte está protegido contra escritura</translation>
    </message>
    <message>
        <source>der Ordner oder die Datei ist nicht mehr da</source>
        <translation>la carpeta o el archivo ya no existe</translation>
    </message>
    <message>
        <source>an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei</source>
        <translation>en su lugar hay algo que no es un archivo normal</translation>
    </message>
</context>
<context>
    <name>PairModel</name>
    <message>
        <source>ohne Ziel</source>
        <translation>sin destino</translation>
    </message>
    <message>
        <source>Alte Zeile</source>
        <translation>Fila antigua</translation>
    </message>
    <message>
        <source>Neue Zeile</source>
        <translation>Fila nueva</translation>
    </message>
    <message>
        <source>Weitere Unterschiede</source>
        <translation>Otras diferencias</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>Die Tabelle des Projektes kann nicht gelesen werden.</source>
        <translation>No se puede leer la tabla del proyecto.</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Ruta:</translation>
    </message>
    <message>
        <source>Norm:</source>
        <translation>Norma:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Denominación:</translation>
    </message>
    <message>
        <source>Projektversion:</source>
        <translation>Versión del proyecto:</translation>
    </message>
    <message>
        <source>Tabellenversion:</source>
        <translation>Versión de la tabla:</translation>
    </message>
    <message>
        <source>Zeilen:</source>
        <translation>Filas:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Filtern</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Ordner öffnen</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>PatternDock</name>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) mit Vorschlag</source>
        <translation>
            <numerusform>%Ln fila abierta con propuesta</numerusform>
            <numerusform>%Ln filas abiertas con propuesta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Muster(n)</source>
        <translation>
            <numerusform>en %Ln patrón</numerusform>
            <numerusform>en %Ln patrones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon wird/werden noch verglichen</source>
        <translation>
            <numerusform>%Ln de ellas aún se está comparando</numerusform>
            <numerusform>%Ln de ellas aún se están comparando</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Gewählt: %Ln Zeile(n)</source>
        <translation>
            <numerusform>Elegida: %Ln fila</numerusform>
            <numerusform>Elegidas: %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon herausgenommen</source>
        <translation>
            <numerusform>%Ln de ellas excluida</numerusform>
            <numerusform>%Ln de ellas excluidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschiede der offenen Zeilen</source>
        <translation>Diferencias de las filas abiertas</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>en %Ln proyecto</numerusform>
            <numerusform>en %Ln proyectos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln offene Zeile(n) ohne Nachfolger</source>
        <translation>
            <numerusform>%Ln fila abierta sin sucesora</numerusform>
            <numerusform>%Ln filas abiertas sin sucesora</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die Tabellen werden verglichen: %Ln Projekt(e) gelesen</source>
        <translation>
            <numerusform>Se están comparando las tablas: %Ln proyecto leído</numerusform>
            <numerusform>Se están comparando las tablas: %Ln proyectos leídos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PatternModel</name>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Projekt(e)</source>
        <translation>
            <numerusform>%Ln proyecto</numerusform>
            <numerusform>%Ln proyectos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln weitere Zeile(n) haben diese und andere Unterschiede</source>
        <translation>
            <numerusform>%Ln fila más tiene estas y otras diferencias</numerusform>
            <numerusform>%Ln filas más tienen estas y otras diferencias</numerusform>
        </translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Sicherheit</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Excepciones</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Zahl in der Nähe</source>
        <translation>número próximo</translation>
    </message>
    <message>
        <source>andere Zahl</source>
        <translation>otro número</translation>
    </message>
    <message>
        <source>anderer Wortlaut</source>
        <translation>otra redacción</translation>
    </message>
    <message>
        <source>Wert hinzugekommen</source>
        <translation>valor añadido</translation>
    </message>
    <message>
        <source>Wert fehlt</source>
        <translation>falta el valor</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>no comparable</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ninguna diferencia</translation>
    </message>
    <message>
        <source>andere Schreibweise</source>
        <translation>otra grafía</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>dudoso: %1</translation>
    </message>
    <message>
        <source>ganzer Ordner ohne Ziel: %1</source>
        <translation>carpeta completa sin destino: %1</translation>
    </message>
    <message>
        <source>ganzes Projekt ohne Ziel: %1</source>
        <translation>proyecto completo sin destino: %1</translation>
    </message>
    <message>
        <source>Zielprojekt gibt es nicht mehr: %1</source>
        <translation>el proyecto de destino ya no existe: %1</translation>
    </message>
    <message>
        <source>%1: %2 gibt es nicht mehr</source>
        <translation>%1: %2 ya no existe</translation>
    </message>
    <message>
        <source>keine ähnliche Zeile: %1</source>
        <translation>ninguna fila parecida: %1</translation>
    </message>
    <message>
        <source>Projektname</source>
        <translation>nombre del proyecto</translation>
    </message>
    <message>
        <source>ein anderer</source>
        <translation>otro</translation>
    </message>
    <message>
        <source>anderer Wert</source>
        <translation>otro valor</translation>
    </message>
    <message>
        <source>je Zeile eine oder mehrere davon</source>
        <translation>una o varias de ellas en cada fila</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>nicht verfügbar: es ist keine Datei geöffnet</source>
        <translation>no disponible: no hay ningún archivo abierto</translation>
    </message>
    <message>
        <source>nicht verfügbar: die Linkdatenbank wird verbunden</source>
        <translation>no disponible: conectando con la base de enlaces</translation>
    </message>
    <message>
        <source>nicht verfügbar: %1</source>
        <translation>no disponible: %1</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Linkdatenbank verbunden</source>
        <translation>no disponible: no hay ninguna base de enlaces conectada</translation>
    </message>
    <message>
        <source>nicht verfügbar: der Linkmanager wartet auf keine Auswahl</source>
        <translation>no disponible: el gestor de enlaces no espera ninguna selección</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist kein Projekt gewählt</source>
        <translation>no disponible: no hay ningún proyecto seleccionado</translation>
    </message>
    <message>
        <source>nicht verfügbar: es ist keine Zeile gewählt</source>
        <translation>no disponible: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>ERP-Nummer für %1, Zeile %2</source>
        <translation>Número ERP para %1, fila %2</translation>
    </message>
    <message>
        <source>Bitte eine ERP-Nummer vergeben.

Projekt: %1
Zeile: %2
</source>
        <translation>Por favor, asignen un número ERP.

Proyecto: %1
Fila: %2
</translation>
    </message>
    <message>
        <source>Es konnte keine Mail begonnen werden.</source>
        <translation>No se pudo empezar ningún correo.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage lautet:

%1: %2</source>
        <translation>En este equipo no hay ningún programa de correo configurado. La solicitud es:

%1: %2</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Es ist keine Tabelle zu sehen, die gedruckt werden kann</source>
        <translation>No hay ninguna tabla a la vista que se pueda imprimir</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Drucken: %1</source>
        <translation>Imprimir: %1</translation>
    </message>
    <message>
        <source>%1 wurde an den Drucker gegeben</source>
        <translation>%1 se ha enviado a la impresora</translation>
    </message>
    <message>
        <source>%1 nach %2 gedruckt</source>
        <translation>%1 impreso en %2</translation>
    </message>
    <message>
        <source>%1 konnte nicht gedruckt werden.</source>
        <translation>No se ha podido imprimir %1.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>La impresora no acepta páginas.</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Página</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Frage</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RangeCommands</name>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Fila %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.</source>
        <translation>
            <numerusform>%Ln fila está confirmada aunque hay valores de su rango sin fila nueva.</numerusform>
            <numerusform>%Ln filas están confirmadas aunque hay valores de sus rangos sin fila nueva.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Zurücknehmen</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Trotzdem bestätigen</source>
        <translation>&amp;Confirmar de todos modos</translation>
    </message>
</context>
<context>
    <name>RangeDock</name>
    <message numerus="yes">
        <source>%1: %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1: %Ln fila</numerusform>
            <numerusform>%1: %Ln filas</numerusform>
        </translation>
    </message>
    <message>
        <source>Die Zeile hat keine Wertebereichszuordnung.</source>
        <translation>La fila no tiene asignación de rangos de valores.</translation>
    </message>
    <message>
        <source>fehlend: %1</source>
        <translation>faltan: %1</translation>
    </message>
    <message>
        <source>mehrfach: %1</source>
        <translation>repetidos: %1</translation>
    </message>
    <message>
        <source>nicht im alten Bereich: %1</source>
        <translation>no están en el rango antiguo: %1</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rango de valores de la fila</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 von %Ln Wert(en) zugeordnet</source>
        <translation>
            <numerusform>%1: %2 de %Ln valor asignado</numerusform>
            <numerusform>%1: %2 de %Ln valores asignados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReasonDialog</name>
    <message>
        <source>Grund der Entscheidung</source>
        <translation>Motivo de la decisión</translation>
    </message>
    <message>
        <source>&amp;Für:</source>
        <translation>&amp;Para:</translation>
    </message>
    <message>
        <source>&amp;Grund:</source>
        <translation>&amp;Motivo:</translation>
    </message>
    <message>
        <source>eingestellt</source>
        <translation>retirada del surtido</translation>
    </message>
    <message>
        <source>zusammengelegt mit einem anderen Teil</source>
        <translation>unida a otra pieza</translation>
    </message>
    <message>
        <source>aufgeteilt in mehrere Teile</source>
        <translation>dividida en varias piezas</translation>
    </message>
    <message>
        <source>in einen anderen Katalog verschoben</source>
        <translation>trasladada a otro catálogo</translation>
    </message>
    <message>
        <source>noch nicht geprüft</source>
        <translation>aún no comprobada</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Wiederherstellung</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>Gespeichert</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Wiederhergestellt</source>
        <translation>Recuperado</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Por comprobar</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sin destino</translation>
    </message>
    <message>
        <source>Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.</source>
        <translation>La versión guardada es más reciente que todo lo que se puede recuperar.</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Mit &amp;späteren Änderungen (%1)</source>
        <translation>&amp;Con cambios posteriores (%1)</translation>
    </message>
    <message>
        <source>&amp;Gespeicherten Stand öffnen</source>
        <translation>&amp;Abrir la versión guardada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Schritt(e)</source>
        <translation>
            <numerusform>%Ln paso</numerusform>
            <numerusform>%Ln pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von %4.</source>
        <translation>De %1 hay trabajo que no se guardó: %2, el último «%3». Es de %4.</translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln fila</numerusform>
            <numerusform>%1 con %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 en %Ln proyecto</numerusform>
            <numerusform>%1 en %Ln proyectos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReleaseCommands</name>
    <message>
        <source>Tabellen werden importiert</source>
        <translation>Importando tablas</translation>
    </message>
    <message>
        <source>%1 hat keine CSV-Datei mehr und bleibt, wie es ist</source>
        <translation>%1 ya no tiene archivo CSV y queda como está</translation>
    </message>
    <message>
        <source>In dem Ordner ist keine CSV-Datei; es wurde nichts importiert</source>
        <translation>En la carpeta no hay ningún archivo CSV; no se importó nada</translation>
    </message>
    <message>
        <source>Abgebrochen: %1</source>
        <translation>Cancelado: %1</translation>
    </message>
    <message>
        <source>Nicht alles geschrieben: %1</source>
        <translation>No se escribió todo: %1</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Zeilen exportieren</source>
        <translation>Exportar filas</translation>
    </message>
    <message>
        <source>Tabellen (*.csv);;Alle Dateien (*)</source>
        <translation>Tablas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Zeilen werden exportiert</source>
        <translation>Exportando filas</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts exportiert</source>
        <translation>Cancelado, no se exportó nada</translation>
    </message>
    <message>
        <source>Bericht schreiben</source>
        <translation>Escribir informe</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf);;HTML-Seiten (*.html);;Alle Dateien (*)</source>
        <translation>Archivos PDF (*.pdf);;Páginas HTML (*.html);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Bericht wird erstellt</source>
        <translation>Creando el informe</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht geschrieben</source>
        <translation>Cancelado, no se escribió ningún informe</translation>
    </message>
    <message>
        <source>Seiten werden gesetzt</source>
        <translation>Componiendo las páginas</translation>
    </message>
    <message>
        <source>Bericht nach %1 geschrieben</source>
        <translation>Informe escrito en %1</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde kein Bericht erstellt</source>
        <translation>Cancelado, no se ha creado ningún informe</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Tabelle(n)</source>
        <translation>
            <numerusform>%Ln tabla</numerusform>
            <numerusform>%Ln tablas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 unverändert, %4 nicht importiert</source>
        <translation>%1 nuevas, %2 cambiadas, %3 sin cambios, %4 no importadas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) nach %1 exportiert</source>
        <translation>
            <numerusform>%Ln fila exportada a %1</numerusform>
            <numerusform>%Ln filas exportadas a %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 mit %Ln Zeile(n)</source>
        <translation>
            <numerusform>%1 con %Ln fila</numerusform>
            <numerusform>%1 con %Ln filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacementsDialog</name>
    <message>
        <source>Vereinbarte Ersetzungen</source>
        <translation>Sustituciones acordadas</translation>
    </message>
    <message>
        <source>im ganzen Katalogstand</source>
        <translation>en toda la versión del catálogo</translation>
    </message>
    <message>
        <source>&amp;Vereinbaren</source>
        <translation>&amp;Acordar</translation>
    </message>
    <message>
        <source>&amp;Zurückziehen</source>
        <translation>&amp;Retirar</translation>
    </message>
    <message>
        <source>&amp;Belege</source>
        <translation>&amp;Pruebas</translation>
    </message>
    <message>
        <source>&amp;Übernehmen</source>
        <translation>A&amp;doptar</translation>
    </message>
    <message>
        <source>Eine Ersetzung sagt, dass ein alter Wert für einen neuen steht. Sie macht Vorschläge, bestätigt aber nichts.</source>
        <translation>Una sustitución dice que un valor antiguo equivale a uno nuevo. Hace propuestas, pero no confirma nada.</translation>
    </message>
    <message>
        <source>vereinbart</source>
        <translation>acordada</translation>
    </message>
    <message>
        <source>vereinbart in %1</source>
        <translation>acordada en %1</translation>
    </message>
    <message>
        <source>Die Tabellen werden gelesen</source>
        <translation>Se están leyendo las tablas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dafür</source>
        <translation>
            <numerusform>%Ln fila a favor</numerusform>
            <numerusform>%Ln filas a favor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) dagegen</source>
        <translation>
            <numerusform>%Ln fila en contra</numerusform>
            <numerusform>%Ln filas en contra</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden deren Ersetzungen hier angeboten.</source>
        <translation>No hay ninguna acordada. Con la lista de diferencias abierta, sus sustituciones se ofrecen aquí.</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>Mapping-Bericht: %1</source>
        <translation>Informe de mapeo: %1</translation>
    </message>
    <message>
        <source>Katalogstand %1 nach %2</source>
        <translation>Versión del catálogo %1 a %2</translation>
    </message>
    <message>
        <source>Erstellt am %1</source>
        <translation>Creado el %1</translation>
    </message>
    <message>
        <source>Stand der Zeilen</source>
        <translation>Situación de las filas</translation>
    </message>
    <message>
        <source>Nach Ordnern, mit allem darunter</source>
        <translation>Por carpetas, con todo lo que contienen</translation>
    </message>
    <message>
        <source>Nach Projekten</source>
        <translation>Por proyectos</translation>
    </message>
    <message>
        <source>Warum Zeilen offen sind</source>
        <translation>Por qué hay filas abiertas</translation>
    </message>
    <message>
        <source>Worin sich offene Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>En qué se diferencian las filas abiertas de sus propuestas</translation>
    </message>
    <message>
        <source>Stichproben</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Wer was entschieden hat</source>
        <translation>Quién decidió qué</translation>
    </message>
    <message>
        <source>Offene Zeilen</source>
        <translation>Filas abiertas</translation>
    </message>
    <message>
        <source>Was nicht gelesen werden konnte</source>
        <translation>Lo que no se pudo leer</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Bestätigt</source>
        <translation>Confirmada</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigt</source>
        <translation>Confirmadas como descatalogadas</translation>
    </message>
    <message>
        <source>Sicher zugeordnet</source>
        <translation>Asignadas con certeza</translation>
    </message>
    <message>
        <source>Zu prüfen</source>
        <translation>Por comprobar</translation>
    </message>
    <message>
        <source>Ohne Ziel</source>
        <translation>Sin destino</translation>
    </message>
    <message>
        <source>Im Konflikt</source>
        <translation>En conflicto</translation>
    </message>
    <message>
        <source>Ordner</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Denominación</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Unterschiede</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>Projekte</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Wahrscheinlichkeit</source>
        <translation>Probabilidad</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Excepciones</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quién</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Beurteilt</source>
        <translation>Evaluadas</translation>
    </message>
    <message>
        <source>Richtig</source>
        <translation>Correctas</translation>
    </message>
    <message>
        <source>Höchstens falsch (zu 95 % sicher)</source>
        <translation>Erróneas como máximo (certeza del 95 %)</translation>
    </message>
    <message>
        <source>abgelehnt</source>
        <translation>rechazada</translation>
    </message>
    <message>
        <source>Tabelle nicht lesbar</source>
        <translation>tabla no legible</translation>
    </message>
    <message>
        <source>nicht zu vergleichen</source>
        <translation>no comparable</translation>
    </message>
    <message>
        <source>kein Unterschied</source>
        <translation>ninguna diferencia</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>zwei haben verschieden entschieden</source>
        <translation>dos personas decidieron de forma distinta</translation>
    </message>
    <message>
        <source>ein anderer entscheidet</source>
        <translation>decide otra persona</translation>
    </message>
    <message>
        <source>eine Tabelle ist nicht lesbar</source>
        <translation>una tabla no es legible</translation>
    </message>
    <message>
        <source>Bedingung oder Formel scheitert</source>
        <translation>falla una condición o una fórmula</translation>
    </message>
    <message>
        <source>kein Ziel ist zuständig</source>
        <translation>ningún destino es competente</translation>
    </message>
    <message>
        <source>eine Spalte fehlt</source>
        <translation>falta una columna</translation>
    </message>
    <message>
        <source>mehrere Zeilen sind gleich</source>
        <translation>varias filas son iguales</translation>
    </message>
    <message>
        <source>zu unähnlich</source>
        <translation>demasiado distintas</translation>
    </message>
    <message>
        <source>gleich, nur nicht bestätigt</source>
        <translation>igual, solo que no confirmada</translation>
    </message>
    <message>
        <source>unsicher: %1</source>
        <translation>dudoso: %1</translation>
    </message>
    <message>
        <source>Offene Zeilen ohne Nachfolger</source>
        <translation>Filas abiertas sin sucesora</translation>
    </message>
    <message>
        <source>Als ausgelaufen bestätigte Zeilen</source>
        <translation>Filas confirmadas como descatalogadas</translation>
    </message>
    <message>
        <source>Was sie gemeinsam haben</source>
        <translation>Qué tienen en común</translation>
    </message>
    <message>
        <source>zusammen</source>
        <translation>en total</translation>
    </message>
    <message>
        <source>Aus früheren Mappings übernommen</source>
        <translation>Adoptadas de mapeos anteriores</translation>
    </message>
    <message>
        <source>Früheres Mapping</source>
        <translation>Mapeo anterior</translation>
    </message>
    <message>
        <source>Noch wie übernommen</source>
        <translation>Siguen como se adoptaron</translation>
    </message>
    <message>
        <source>Beurteilte Zeilen</source>
        <translation>Filas evaluadas</translation>
    </message>
    <message>
        <source>Erledigte Zeilen: %1 von %2; offen: %3.</source>
        <translation>Filas resueltas: %1 de %2; abiertas: %3.</translation>
    </message>
</context>
<context>
    <name>RepositoryBox</name>
    <message>
        <source>Zielprojekte aus dem Reposi&amp;tory lesen</source>
        <translation>&amp;Leer los proyectos de destino del repositorio</translation>
    </message>
    <message>
        <source>Katalog = svn://Server:Port/Pfad</source>
        <translation>Catálogo = svn://servidor:puerto/ruta</translation>
    </message>
    <message>
        <source>Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich der seines Servers.</source>
        <translation>Un catálogo por línea. Sin línea, el nombre del catálogo es también el de su servidor.</translation>
    </message>
    <message>
        <source>die neueste</source>
        <translation>la más reciente</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Serv&amp;er:</source>
        <translation>Ser&amp;vidor:</translation>
    </message>
    <message>
        <source>Revisi&amp;on:</source>
        <translation>Revisió&amp;n:</translation>
    </message>
    <message>
        <source>&amp;Platz auf dieser Maschine:</source>
        <translation>Espacio en esta &amp;máquina:</translation>
    </message>
    <message>
        <source>&amp;Warten auf den Server:</source>
        <translation>Espe&amp;ra al servidor:</translation>
    </message>
    <message>
        <source>Server, Zeile %1: &quot;%2&quot; ist nicht von der Form &quot;Katalog = svn://Server:Port/Pfad&quot;.</source>
        <translation>Servidor, línea %1: &quot;%2&quot; no tiene la forma &quot;Catálogo = svn://servidor:puerto/ruta&quot;.</translation>
    </message>
</context>
<context>
    <name>RepositoryLoginDialog</name>
    <message>
        <source>Anmeldung am Repository</source>
        <translation>Inicio de sesión en el repositorio</translation>
    </message>
    <message>
        <source>%1 verlangt eine Anmeldung.</source>
        <translation>%1 exige iniciar sesión.</translation>
    </message>
    <message>
        <source>Name und Kennwort gelten bis zum Ende des Programms und werden nicht gespeichert.</source>
        <translation>El nombre y la contraseña valen hasta que termine el programa y no se guardan.</translation>
    </message>
</context>
<context>
    <name>ReviewCommands</name>
    <message>
        <source>Die Zeile %1 kann nicht gezeigt werden</source>
        <translation>No se puede mostrar la fila %1</translation>
    </message>
    <message>
        <source>Keine Zeile mehr offen</source>
        <translation>Ya no hay ninguna fila abierta</translation>
    </message>
    <message>
        <source>Die Tabellen sind noch nicht verglichen</source>
        <translation>Las tablas aún no se han comparado</translation>
    </message>
    <message numerus="yes">
        <source>Von vorn: %Ln Zeile(n) offen</source>
        <translation>
            <numerusform>Desde el principio: %Ln fila abierta</numerusform>
            <numerusform>Desde el principio: %Ln filas abiertas</numerusform>
        </translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrer Unsicherheit</source>
        <translation>Las filas abiertas vienen por su incertidumbre</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach ihrem Ort</source>
        <translation>Las filas abiertas vienen por su lugar</translation>
    </message>
    <message>
        <source>Die Zeile gehört nicht zum gewählten Muster</source>
        <translation>La fila no pertenece al patrón elegido</translation>
    </message>
    <message>
        <source>Zeile %1 herausgenommen</source>
        <translation>Fila %1 excluida</translation>
    </message>
    <message>
        <source>Es ist kein Muster gewählt, oder alle Zeilen sind entschieden</source>
        <translation>No hay ningún patrón elegido, o todas sus filas están decididas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n)</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en) bestätigen?</source>
        <translation>
            <numerusform>¿confirmar en %Ln proyecto?</numerusform>
            <numerusform>¿confirmar en %Ln proyectos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Der Schritt kann zurückgenommen werden.</source>
        <translation>El paso se puede deshacer.</translation>
    </message>
    <message>
        <source>&amp;Bestätigen</source>
        <translation>&amp;Confirmar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln fila confirmada</numerusform>
            <numerusform>%Ln filas confirmadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Einen Kandidaten %1 gibt es nicht</source>
        <translation>No hay ninguna candidata %1</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>Fila %1 → %2 confirmada</translation>
    </message>
    <message>
        <source>Ersetzungen vereinbart: %1</source>
        <translation>Sustituciones acordadas: %1</translation>
    </message>
    <message>
        <source>Wählen Sie ein Muster, oder markieren Sie offene Zeilen</source>
        <translation>Elija un patrón o seleccione filas abiertas</translation>
    </message>
    <message>
        <source>Stichprobe</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>&amp;Ziehen</source>
        <translation>&amp;Sortear</translation>
    </message>
    <message>
        <source>Stichprobe, Zeile %1 von %2: + richtig, − falsch</source>
        <translation>Muestra, fila %1 de %2: + correcta, − errónea</translation>
    </message>
    <message>
        <source>Es läuft keine Stichprobe</source>
        <translation>No hay ninguna muestra en curso</translation>
    </message>
    <message>
        <source>Die Zeilen der Stichprobe sind alle schon entschieden</source>
        <translation>Todas las filas de la muestra están ya decididas</translation>
    </message>
    <message>
        <source>%1 von %2 richtig</source>
        <translation>%1 de %2 correctas</translation>
    </message>
    <message>
        <source>Stichprobe abgelehnt, %1; beurteilt von %2</source>
        <translation>Muestra rechazada, %1; evaluada por %2</translation>
    </message>
    <message>
        <source>alle Zeilen beurteilt</source>
        <translation>todas las filas evaluadas</translation>
    </message>
    <message>
        <source>mit 95 % Sicherheit weniger als %1 % falsch</source>
        <translation>con un 95 % de certeza menos del %1 % erróneas</translation>
    </message>
    <message>
        <source>Stichprobe: %1, %2</source>
        <translation>Muestra: %1, %2</translation>
    </message>
    <message>
        <source>beurteilt von %1</source>
        <translation>evaluada por %1</translation>
    </message>
    <message>
        <source>dort war die falsche</source>
        <translation>ahí estaba la errónea</translation>
    </message>
    <message>
        <source>Zeile %1 ist falsch: die Stichprobe ist zu Ende</source>
        <translation>La fila %1 es errónea: la muestra ha terminado</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>Co&amp;ntinuar</translation>
    </message>
    <message>
        <source>&amp;Falsche Zeile ansehen</source>
        <translation>&amp;Ver la fila errónea</translation>
    </message>
    <message numerus="yes">
        <source>%Ln davon ist/sind unsicher.</source>
        <translation>
            <numerusform>%Ln de ellas es dudosa.</numerusform>
            <numerusform>%Ln de ellas son dudosas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alle Muster sind erledigt</source>
        <translation>Todos los patrones están resueltos</translation>
    </message>
    <message numerus="yes">
        <source>in %Ln Projekt(en)</source>
        <translation>
            <numerusform>en %Ln proyecto</numerusform>
            <numerusform>en %Ln proyectos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln fila confirmada como descatalogada</numerusform>
            <numerusform>%Ln filas confirmadas como descatalogadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll es weitergehen?</source>
        <translation>La fila %1 de %2 es errónea. El conjunto se ha dividido; ¿con qué parte se sigue?</translation>
    </message>
    <message numerus="yes">
        <source>So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit 95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.</source>
        <translation>
            <numerusform>Tantas de %Ln fila se sortean y se evalúan una a una. %1 correctas indican con un 95 % de certeza que menos del 5 % son erróneas, %2 correctas, menos del 1 %.</numerusform>
            <numerusform>Tantas de %Ln filas se sortean y se evalúan una a una. %1 correctas indican con un 95 % de certeza que menos del 5 % son erróneas, %2 correctas, menos del 1 %.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScriptConsole</name>
    <message>
        <source>Skriptkonsole</source>
        <translation>Consola de scripts</translation>
    </message>
    <message>
        <source>Ausgabe der Skripte</source>
        <translation>Salida de los scripts</translation>
    </message>
    <message>
        <source>Zeile eines Skripts</source>
        <translation>Línea de un script</translation>
    </message>
    <message>
        <source>Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern.</source>
        <translation>Una línea de JavaScript. Intro la ejecuta, Tab completa, Arriba y Abajo recorren el historial.</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Hält das laufende Skript an (Esc)</source>
        <translation>Detiene el script en curso (Esc)</translation>
    </message>
    <message>
        <source>Leeren</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Löscht die Ausgabe</source>
        <translation>Borra la salida</translation>
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
        <translation>(consola)</translation>
    </message>
    <message>
        <source>Fertig</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Fertig, Status %1</source>
        <translation>Terminado, estado %1</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Fila %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Sie ist zu groß.</source>
        <translation>Es demasiado grande.</translation>
    </message>
    <message>
        <source>Sie ist kein Text in UTF-8.</source>
        <translation>No es un texto en UTF-8.</translation>
    </message>
    <message>
        <source>%1 kann nicht gelesen werden. %2</source>
        <translation>No se puede leer %1. %2</translation>
    </message>
    <message>
        <source>Skript öffnen</source>
        <translation>Abrir script</translation>
    </message>
    <message>
        <source>Skripte (*.js);;Alle Dateien (*)</source>
        <translation>Scripts (*.js);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Skript speichern</source>
        <translation>Guardar script</translation>
    </message>
    <message>
        <source>%1 kann nicht geschrieben werden. %2</source>
        <translation>No se puede escribir %1. %2</translation>
    </message>
    <message>
        <source>Das Skript ist nicht gespeichert.</source>
        <translation>El script no está guardado.</translation>
    </message>
    <message>
        <source>(ohne Namen)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>Neues Skript</source>
        <translation>Nuevo script</translation>
    </message>
    <message>
        <source>Skript</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Öffnen …</source>
        <translation>Abrir …</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Ausführen</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Anhalten</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Argumente:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Text des Skripts</source>
        <translation>Texto del script</translation>
    </message>
    <message>
        <source>Argumente</source>
        <translation>Argumentos</translation>
    </message>
</context>
<context>
    <name>SessionOwner</name>
    <message>
        <source>an</source>
        <translation>en</translation>
    </message>
    <message>
        <source>(Prozess %1)</source>
        <translation>(proceso %1)</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Das Journal %1 kann nicht gelesen werden (%2).</source>
        <translation>No se puede leer el diario %1 (%2).</translation>
    </message>
    <message>
        <source>Hinter der letzten abgeschlossenen Sitzung ist das Journal %1 nicht lesbar. Was dort stand, ist nicht bekannt; das Journal wird aufgehoben.</source>
        <translation>Tras la última sesión concluida, el diario %1 no es legible. No se sabe qué había ahí; el diario se conserva.</translation>
    </message>
    <message>
        <source>Das Ende des Journals %1 ist nicht lesbar. Die letzte Änderung kann fehlen.</source>
        <translation>El final del diario %1 no es legible. Puede faltar el último cambio.</translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt. Hinter der Schadstelle passt/passen noch %Ln Änderung(en), %2 nicht mehr; weitere können fehlen. Das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>El diario %1 está dañado. Tras la parte dañada aún encaja %Ln cambio, %2 ya no encajan; pueden faltar más. El diario se conserva.</numerusform>
            <numerusform>El diario %1 está dañado. Tras la parte dañada aún encajan %Ln cambios, %2 ya no encajan; pueden faltar más. El diario se conserva.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Das Journal %1 ist beschädigt oder passt nicht zur Mapping-Datei. Mindestens %Ln spätere Änderung(en) fehlt/fehlen; das Journal wird aufgehoben.</source>
        <translation>
            <numerusform>El diario %1 está dañado o no corresponde al archivo de mapeo. Falta al menos %Ln cambio posterior; el diario se conserva.</numerusform>
            <numerusform>El diario %1 está dañado o no corresponde al archivo de mapeo. Faltan al menos %Ln cambios posteriores; el diario se conserva.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Nach einer Entscheidung weiter zur nä&amp;chsten offenen Zeile</source>
        <translation>Tras una decisión, pasar a la siguiente &amp;fila abierta</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Wie der Desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>nie</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>C&amp;olores:</translation>
    </message>
    <message>
        <source>Sch&amp;riftgröße:</source>
        <translation>&amp;Tamaño de letra:</translation>
    </message>
    <message>
        <source>Sicherungs&amp;kopie alle:</source>
        <translation>Copia &amp;de seguridad cada:</translation>
    </message>
    <message>
        <source>Hoher Kontrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines Katalogs außerhalb der Kataloge nennen.</source>
        <translation>Una carpeta por línea, de la que se puede leer lo que los archivos de un catálogo nombran fuera de los catálogos.</translation>
    </message>
    <message>
        <source>Erlaubte Ordner:</source>
        <translation>Carpetas permitidas:</translation>
    </message>
    <message>
        <source>Erlaubte Ordner: &quot;%1&quot; ist kein Ordner mit vollständigem Pfad.</source>
        <translation>Carpetas permitidas: &quot;%1&quot; no es una carpeta con ruta completa.</translation>
    </message>
</context>
<context>
    <name>ShareCommands</name>
    <message>
        <source>Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.</source>
        <translation>El mapeo no se comparte con nadie. Elija primero la copia común.</translation>
    </message>
    <message>
        <source>%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, oder die vorhandene in eine neue Datei holen.</source>
        <translation>%1 ya existe y es otro mapeo. Elija otra copia o traiga la existente a un archivo nuevo.</translation>
    </message>
    <message>
        <source>Andere haben seit der letzten Aktualisierung etwas veröffentlicht.</source>
        <translation>Otros han publicado algo desde la última actualización.</translation>
    </message>
    <message>
        <source>Zeilen in Konflikt werden nicht veröffentlicht: %1.</source>
        <translation>Las filas en conflicto no se publican: %1.</translation>
    </message>
    <message>
        <source>Es gibt Änderungen in Ordnern anderer: %1.</source>
        <translation>Hay cambios en carpetas de otros: %1.</translation>
    </message>
    <message>
        <source>Der Ordner ist schon vergeben: %1.</source>
        <translation>La carpeta ya está ocupada: %1.</translation>
    </message>
    <message>
        <source>Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.</source>
        <translation>Otra persona está publicando en este momento (%1). Inténtelo de nuevo enseguida.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist unverändert; später noch einmal versuchen.</source>
        <translation>No se puede acceder a la copia común: %1. El archivo propio no ha cambiado; inténtelo más tarde.</translation>
    </message>
    <message>
        <source>Eine der Dateien ist kein lesbares Mapping: %1.</source>
        <translation>Uno de los archivos no es un mapeo legible: %1.</translation>
    </message>
    <message>
        <source>Es konnte nicht geschrieben werden: %1.</source>
        <translation>No se pudo escribir: %1.</translation>
    </message>
    <message>
        <source>Das ging nicht.</source>
        <translation>No ha sido posible.</translation>
    </message>
    <message>
        <source>Die gemeinsame Kopie wird gelesen</source>
        <translation>Leyendo la copia común</translation>
    </message>
    <message>
        <source>Geteilt über %1</source>
        <translation>Compartido mediante %1</translation>
    </message>
    <message>
        <source>Änderungen der anderen werden geholt</source>
        <translation>Trayendo los cambios de los demás</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues</source>
        <translation>No hay nada nuevo</translation>
    </message>
    <message>
        <source>Die Änderungen werden veröffentlicht</source>
        <translation>Publicando los cambios</translation>
    </message>
    <message>
        <source>Mapping bearbeitet</source>
        <translation>Mapeo editado</translation>
    </message>
    <message>
        <source>Veröffentlicht, Stand %1</source>
        <translation>Publicado, revisión %1</translation>
    </message>
    <message>
        <source>Zuerst wird das übernommen. Danach kann veröffentlicht werden.</source>
        <translation>Primero se incorpora eso. Después se puede publicar.</translation>
    </message>
    <message>
        <source>A&amp;ktualisieren</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>&amp;Trotzdem veröffentlichen</source>
        <translation>&amp;Publicar de todos modos</translation>
    </message>
    <message>
        <source>Ordner übernehmen</source>
        <translation>Tomar carpetas</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Tomar</translation>
    </message>
    <message>
        <source>Die Ordner werden eingetragen</source>
        <translation>Anotando las carpetas</translation>
    </message>
    <message>
        <source>Keine eigenen Ordner mehr</source>
        <translation>Ya no tiene carpetas propias</translation>
    </message>
    <message>
        <source>Eigene Ordner: %1</source>
        <translation>Carpetas propias: %1</translation>
    </message>
    <message>
        <source>(hier)</source>
        <translation>(aquí)</translation>
    </message>
    <message>
        <source>hat es offen</source>
        <translation>lo tiene abierto</translation>
    </message>
    <message>
        <source>hat es nicht offen</source>
        <translation>no lo tiene abierto</translation>
    </message>
    <message>
        <source>zuletzt %1</source>
        <translation>última vez %1</translation>
    </message>
    <message>
        <source>Ordner %1</source>
        <translation>carpetas %1</translation>
    </message>
    <message>
        <source>Eigener Stand %1, neuester Stand %2</source>
        <translation>Revisión propia %1, revisión más reciente %2</translation>
    </message>
    <message>
        <source>Andere haben etwas veröffentlicht.</source>
        <translation>Otros han publicado algo.</translation>
    </message>
    <message>
        <source>Es gibt nichts Neues von anderen.</source>
        <translation>No hay nada nuevo de los demás.</translation>
    </message>
    <message>
        <source>Eigene Änderungen sind noch nicht veröffentlicht.</source>
        <translation>Los cambios propios aún no se han publicado.</translation>
    </message>
    <message>
        <source>Gemeinsame Kopie: %1</source>
        <translation>Copia común: %1</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen, aber angekommen.</source>
        <translation>La última publicación se interrumpió, pero llegó.</translation>
    </message>
    <message>
        <source>Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal veröffentlichen.</source>
        <translation>La última publicación se interrumpió. Publique otra vez.</translation>
    </message>
    <message>
        <source>Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. Das ist aufgehoben in %1.</source>
        <translation>El archivo común se había cambiado en la copia de trabajo sin enviarlo. Eso se conserva en %1.</translation>
    </message>
    <message>
        <source>Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde aufgeräumt.</source>
        <translation>La copia de trabajo se había dejado en mitad de una operación y se ha ordenado.</translation>
    </message>
    <message>
        <source>Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die frühere ist %1.</source>
        <translation>La gestión de la copia de trabajo estaba dañada y se ha traído de nuevo; la anterior es %1.</translation>
    </message>
    <message>
        <source>Etwas Abgebrochenes wurde in Ordnung gebracht.</source>
        <translation>Algo interrumpido se ha puesto en orden.</translation>
    </message>
    <message>
        <source>Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? für eines. Leer gibt alle zurück:</source>
        <translation>Carpetas del catálogo, separadas por comas; * vale por cualesquiera caracteres, ? por uno. Vacío las devuelve todas:</translation>
    </message>
</context>
<context>
    <name>StatusArea</name>
    <message>
        <source>rückgängig</source>
        <translation>deshacer</translation>
    </message>
    <message>
        <source>Alles entschieden</source>
        <translation>Todo decidido</translation>
    </message>
    <message>
        <source>Zeilen, die noch eine Entscheidung brauchen</source>
        <translation>Filas que aún necesitan una decisión</translation>
    </message>
    <message>
        <source>Schreibgeschützt</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Filter: keine Zeile</source>
        <translation>Filtro: ninguna fila</translation>
    </message>
    <message>
        <source>Zeilen, die der Filter über alle Zeilen zeigt</source>
        <translation>Filas que muestra el filtro sobre todas las filas</translation>
    </message>
    <message numerus="yes">
        <source>&lt;a href=&quot;next&quot;&gt;%Ln Zeile(n)&lt;/a&gt;</source>
        <translation>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln fila&lt;/a&gt;</numerusform>
            <numerusform>&lt;a href=&quot;next&quot;&gt;%Ln filas&lt;/a&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>Offen: %1</source>
        <translation>Abiertas: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <extracomment>&quot;12 lines in 3 projects&quot;</extracomment>
        <translation>
            <numerusform>%1 en %Ln proyecto</numerusform>
            <numerusform>%1 en %Ln proyectos</numerusform>
        </translation>
    </message>
    <message>
        <source>Noch keine Zeile zugeordnet</source>
        <translation>Aún no hay ninguna fila asignada</translation>
    </message>
</context>
<context>
    <name>StatusProgress</name>
    <message>
        <source>Fortschritt</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Bricht die laufende Arbeit ab; was fertig ist, bleibt</source>
        <translation>Cancela el trabajo en curso; lo terminado se queda</translation>
    </message>
    <message>
        <source>Fehler und Warnungen: %1</source>
        <translation>Errores y avisos: %1</translation>
    </message>
</context>
<context>
    <name>StepListDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Wer, was oder Zeilen suchen</source>
        <translation>Buscar quién, qué o filas</translation>
    </message>
    <message>
        <source>&amp;Bis hier zurücknehmen</source>
        <translation>&amp;Volver hasta aquí</translation>
    </message>
    <message>
        <source>Nimmt diesen und alle späteren Schritte zurück, die gelten</source>
        <translation>Deshace este paso y todos los posteriores vigentes</translation>
    </message>
    <message>
        <source>Zur Z&amp;eile</source>
        <translation>Ir a la f&amp;ila</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln abhängigen &amp;zurücknehmen</source>
        <translation>
            <numerusform>&amp;Deshacer con los dependientes (%Ln)</numerusform>
            <numerusform>&amp;Deshacer con los dependientes (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Nur diesen &amp;zurücknehmen</source>
        <translation>&amp;Deshacer solo este</translation>
    </message>
    <message numerus="yes">
        <source>Mit %Ln früheren &amp;wieder ausführen</source>
        <translation>
            <numerusform>&amp;Rehacer con los anteriores (%Ln)</numerusform>
            <numerusform>&amp;Rehacer con los anteriores (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Wieder ausführen</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Noch kein Schritt</source>
        <translation>Aún no hay pasos</translation>
    </message>
    <message>
        <source>Kein anderer Schritt hängt davon ab.</source>
        <translation>Ningún otro paso depende de él.</translation>
    </message>
    <message>
        <source>Der Schritt kann für sich wieder ausgeführt werden.</source>
        <translation>El paso puede rehacerse por sí solo.</translation>
    </message>
    <message>
        <source>Darauf bauen auf: %1</source>
        <translation>Se basan en él: %1</translation>
    </message>
    <message>
        <source>Er baut auf: %1</source>
        <translation>Se basa en: %1</translation>
    </message>
    <message>
        <source>Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1</source>
        <translation>Lo impiden, porque decidieron otra cosa: %1</translation>
    </message>
    <message>
        <source>Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.</source>
        <translation>Ahora hay algo distinto que ningún paso de esta lista decidió, por ejemplo de otro programa. El paso ya no puede moverse.</translation>
    </message>
    <message numerus="yes">
        <source>und %Ln weitere</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepListModel</name>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 en %Ln proyecto</numerusform>
            <numerusform>%1 en %Ln proyectos</numerusform>
        </translation>
    </message>
    <message>
        <source>gilt</source>
        <translation>vigente</translation>
    </message>
    <message>
        <source>zurückgenommen</source>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>überholt</source>
        <translation>superado</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Quién</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Zeilen</source>
        <translation>Filas</translation>
    </message>
</context>
<context>
    <name>StepNotices</name>
    <message>
        <source>Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. Dabei bleibt nur erhalten, was bestätigt ist.</source>
        <translation>El cambio en %1 solo surte efecto cuando las filas se asignan de nuevo. Entonces solo se conserva lo confirmado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: %2</source>
        <translation>
            <numerusform>%Ln fila en %1 estaba confirmada como descatalogada y ya no lo está: %2</numerusform>
            <numerusform>%Ln filas en %1 estaban confirmadas como descatalogadas y ya no lo están: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, &quot;Formel...&quot; wählen oder die Zeile löschen und neu eingeben.</source>
        <translation>En %1 quedan variables ignoradas: %2. Para volver a asignar una de ellas, elija &quot;Fórmula...&quot; o borre la fila e introdúzcala de nuevo.</translation>
    </message>
    <message>
        <source>Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Ha desaparecido una condición del proyecto de destino %1 en %2.</translation>
    </message>
    <message>
        <source>Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.</source>
        <translation>Ha desaparecido una correspondencia de variables del proyecto de destino %1 en %2.</translation>
    </message>
    <message numerus="yes">
        <source>Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4</source>
        <translation>
            <numerusform>Fila %1 → %2 en %3: la fila de destino la tiene también %Ln fila más: %4</numerusform>
            <numerusform>Fila %1 → %2 en %3: la fila de destino la tienen también %Ln filas más: %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2</source>
        <translation>
            <numerusform>%Ln fila en %1 comparte su fila de destino con otras recién asignadas: %2</numerusform>
            <numerusform>%Ln filas en %1 comparten su fila de destino con otras recién asignadas: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StepSummary</name>
    <message numerus="yes">
        <source>%Ln Konflikt(e) angenommen</source>
        <translation>
            <numerusform>%Ln conflicto aceptado</numerusform>
            <numerusform>%Ln conflictos aceptados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) bestätigt</source>
        <translation>
            <numerusform>%Ln fila confirmada</numerusform>
            <numerusform>%Ln filas confirmadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) als ausgelaufen bestätigt</source>
        <translation>
            <numerusform>%Ln fila confirmada como descatalogada</numerusform>
            <numerusform>%Ln filas confirmadas como descatalogadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) zugeordnet</source>
        <translation>
            <numerusform>%Ln fila asignada</numerusform>
            <numerusform>%Ln filas asignadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Zuordnung von %Ln Zeile(n) aufgehoben</source>
        <translation>
            <numerusform>quitada la asignación de %Ln fila</numerusform>
            <numerusform>quitada la asignación de %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Wertebereichszuordnung von %Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>cambiada la asignación de rangos de valores de %Ln fila</numerusform>
            <numerusform>cambiada la asignación de rangos de valores de %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Konflikt von %Ln Zeile(n) gelöst</source>
        <translation>
            <numerusform>resuelto el conflicto de %Ln fila</numerusform>
            <numerusform>resuelto el conflicto de %Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Zeile(n) geändert</source>
        <translation>
            <numerusform>%Ln fila cambiada</numerusform>
            <numerusform>%Ln filas cambiadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Zeile %1 → %2 bestätigt</source>
        <translation>fila %1 → %2 confirmada</translation>
    </message>
    <message>
        <source>Zeile %1 → %2 zugeordnet</source>
        <translation>fila %1 → %2 asignada</translation>
    </message>
    <message>
        <source>%1 (vorher %2)</source>
        <translation>%1 (antes %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt (vorher %2)</source>
        <translation>fila %1 confirmada como descatalogada (antes %2)</translation>
    </message>
    <message>
        <source>Zeile %1 als ausgelaufen bestätigt</source>
        <translation>fila %1 confirmada como descatalogada</translation>
    </message>
    <message>
        <source>Zuordnung von Zeile %1 aufgehoben (vorher %2)</source>
        <translation>quitada la asignación de la fila %1 (antes %2)</translation>
    </message>
    <message>
        <source>Projekt hinzugefügt</source>
        <translation>Proyecto añadido</translation>
    </message>
    <message>
        <source>Projekt entfernt</source>
        <translation>Proyecto quitado</translation>
    </message>
    <message>
        <source>Zielprojekt hinzugefügt</source>
        <translation>Proyecto de destino añadido</translation>
    </message>
    <message>
        <source>Zielprojekt entfernt</source>
        <translation>Proyecto de destino quitado</translation>
    </message>
    <message>
        <source>Reihenfolge der Zielprojekte geändert</source>
        <translation>Orden de los proyectos de destino cambiado</translation>
    </message>
    <message>
        <source>Bedingungen geändert</source>
        <translation>Condiciones cambiadas</translation>
    </message>
    <message>
        <source>Variablenzuordnung geändert</source>
        <translation>Correspondencia de variables cambiada</translation>
    </message>
    <message>
        <source>Versionen geändert</source>
        <translation>Versiones cambiadas</translation>
    </message>
    <message>
        <source>Status geändert</source>
        <translation>Estado cambiado</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln Projekt(en)</source>
        <translation>
            <numerusform>%1 en %Ln proyecto</numerusform>
            <numerusform>%1 en %Ln proyectos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TourOverlay</name>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Überspringen</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Terminar</translation>
    </message>
</context>
<context>
    <name>ValueRangeCheck</name>
    <message>
        <source>%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form {NAME=WERT} -&gt; Zeilennummer: &quot;%4&quot;. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, fila %2: la fila %3 de la asignación de rangos de valores no tiene la forma {NAME=VALOR} -&gt; número de fila: &quot;%4&quot;. Corríjala o resuélvala de nuevo.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat kein Zielprojekt. Bitte zuordnen oder den Text leeren.</source>
        <translation>%1, fila %2: la asignación de rangos de valores nombra la fila %3, pero la fila no tiene proyecto de destino. Asígnela o vacíe el texto.</translation>
    </message>
    <message>
        <source>%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht gibt. Bitte berichtigen oder neu auflösen.</source>
        <translation>%1, fila %2: la asignación de rangos de valores nombra la fila %3, que no existe en %4. Corríjala o resuélvala de nuevo.</translation>
    </message>
    <message>
        <source>%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte prüfen (%3).</source>
        <translation>%1: no se puede leer la tabla del proyecto de destino %2, sus asignaciones de rangos de valores están sin comprobar. Compruebe el directorio de los proyectos de destino (%3).</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen werden geprüft</source>
        <translation>Comprobando las asignaciones de rangos de valores</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Wertebereichszuordnung(en) geprüft</source>
        <translation>
            <numerusform>%Ln asignación de rangos de valores comprobada</numerusform>
            <numerusform>%Ln asignaciones de rangos de valores comprobadas</numerusform>
        </translation>
    </message>
    <message>
        <source>keine Beanstandung</source>
        <translation>sin objeciones</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Beanstandung(en)</source>
        <translation>
            <numerusform>%Ln objeción</numerusform>
            <numerusform>%Ln objeciones</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (abgebrochen): %2.</source>
        <translation>%1 (cancelado): %2.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Katalogstände abgleichen</source>
        <translation>Cotejar versiones de catálogos</translation>
    </message>
    <message>
        <source>Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie prüfen und bestätigen.</source>
        <translation>Ha salido una nueva versión de un catálogo y cada fila de la antigua debe pasar a una fila de la nueva. El programa propone, usted comprueba y confirma.</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet:</source>
        <translation>Abiertos por última vez:</translation>
    </message>
</context>
<context>
    <name>WorkbenchActions</name>
    <message>
        <source>&amp;Neues Mapping...</source>
        <translation>&amp;Nuevo mapeo...</translation>
    </message>
    <message>
        <source>Legt aus zwei Katalogständen eine neue Mapping-Datei an</source>
        <translation>Crea un archivo de mapeo nuevo a partir de dos versiones del catálogo</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>A&amp;brir...</translation>
    </message>
    <message>
        <source>Öffnet eine Mapping-Datei</source>
        <translation>Abre un archivo de mapeo</translation>
    </message>
    <message>
        <source>Be&amp;ispielkatalog öffnen</source>
        <translation>Abrir &amp;el catálogo de ejemplo</translation>
    </message>
    <message>
        <source>Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog</source>
        <translation>Abre un archivo de mapeo propio para el catálogo de ejemplo incluido</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Schreibt alle Änderungen in die Mapping-Datei</source>
        <translation>Escribe todos los cambios en el archivo de mapeo</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Guardar co&amp;mo...</translation>
    </message>
    <message>
        <source>Schreibt in eine andere Mapping-Datei</source>
        <translation>Escribe en otro archivo de mapeo</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>Schließt die Mapping-Datei</source>
        <translation>Cierra el archivo de mapeo</translation>
    </message>
    <message>
        <source>&amp;Katalogverzeichnisse...</source>
        <translation>&amp;Directorios de catálogos...</translation>
    </message>
    <message>
        <source>Wählt die Verzeichnisse des alten und des neuen Katalogstands</source>
        <translation>Elige los directorios de la versión antigua y de la nueva del catálogo</translation>
    </message>
    <message>
        <source>&amp;Gemeinsame Kopie...</source>
        <translation>&amp;Copia común...</translation>
    </message>
    <message>
        <source>Wählt die Kopie, über die mehrere an diesem Mapping arbeiten</source>
        <translation>Elige la copia con la que varios trabajan en este mapeo</translation>
    </message>
    <message>
        <source>&amp;Aktualisieren</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>Übernimmt, was andere veröffentlicht haben</source>
        <translation>Incorpora lo que otros han publicado</translation>
    </message>
    <message>
        <source>&amp;Veröffentlichen</source>
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>Gibt die eigenen Änderungen an die anderen weiter</source>
        <translation>Pasa los cambios propios a los demás</translation>
    </message>
    <message>
        <source>&amp;Ordner übernehmen...</source>
        <translation>&amp;Tomar carpetas...</translation>
    </message>
    <message>
        <source>Sagt den anderen, welche Ordner man selbst bearbeitet</source>
        <translation>Dice a los demás qué carpetas edita uno mismo</translation>
    </message>
    <message>
        <source>&amp;Wer arbeitet woran</source>
        <translation>&amp;Quién trabaja en qué</translation>
    </message>
    <message>
        <source>Zeigt, wer das Mapping offen hat und welche Ordner wem gehören</source>
        <translation>Muestra quién tiene abierto el mapeo y de quién es cada carpeta</translation>
    </message>
    <message>
        <source>Tabellen i&amp;mportieren...</source>
        <translation>&amp;Importar tablas...</translation>
    </message>
    <message>
        <source>Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs</source>
        <translation>Hace de una carpeta con archivos CSV proyectos de un catálogo</translation>
    </message>
    <message>
        <source>Zeilen e&amp;xportieren...</source>
        <translation>Exportar &amp;filas...</translation>
    </message>
    <message>
        <source>Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei</source>
        <translation>Escribe todas las filas de la versión con sus asignaciones en un archivo CSV</translation>
    </message>
    <message>
        <source>Be&amp;richt...</source>
        <translation>Inf&amp;orme...</translation>
    </message>
    <message>
        <source>Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen sind</source>
        <translation>Escribe en PDF o HTML hasta dónde ha llegado la versión y por qué hay filas abiertas</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Termina el programa</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Deshace el último paso</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Führt den zurückgenommenen Schritt wieder aus</source>
        <translation>Vuelve a ejecutar el paso deshecho</translation>
    </message>
    <message>
        <source>Zeilen &amp;bestätigen...</source>
        <translation>Confirmar &amp;filas...</translation>
    </message>
    <message>
        <source>Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt</source>
        <translation>Confirma en un paso la asignación de las filas seleccionadas o de todas las mostradas</translation>
    </message>
    <message>
        <source>Zeilen ohne Ziel als aus&amp;gelaufen bestätigen...</source>
        <translation>Confirmar filas &amp;sin destino como descatalogadas...</translation>
    </message>
    <message>
        <source>Bestätigt von den markierten oder allen gezeigten Zeilen die ohne Ziel als ausgelaufen</source>
        <translation>Confirma como descatalogadas las que no tienen destino de las filas seleccionadas o de todas las mostradas</translation>
    </message>
    <message>
        <source>Zuordnungen &amp;aufheben...</source>
        <translation>&amp;Quitar asignaciones...</translation>
    </message>
    <message>
        <source>Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf</source>
        <translation>Quita en un paso la asignación de las filas seleccionadas o de todas las mostradas</translation>
    </message>
    <message>
        <source>Zuordnungen aufheben und bestä&amp;tigen...</source>
        <translation>Quitar asignaciones &amp;y confirmar...</translation>
    </message>
    <message>
        <source>Die markierten oder alle gezeigten Zeilen sind ausgelaufen: hebt auf und bestätigt in einem Schritt</source>
        <translation>Las filas seleccionadas, o todas las mostradas, están descatalogadas: quita y confirma en un paso</translation>
    </message>
    <message>
        <source>Alle Projekte &amp;zuordnen...</source>
        <translation>Asignar &amp;todos los proyectos...</translation>
    </message>
    <message>
        <source>Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt</source>
        <translation>Busca asignaciones para todas las filas del catálogo; lo confirmado se queda</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen &amp;prüfen</source>
        <translation>Comprobar asignaciones de rangos de &amp;valores</translation>
    </message>
    <message>
        <source>Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte</source>
        <translation>Compara todos los textos de rangos de valores con las tablas de los proyectos de destino</translation>
    </message>
    <message>
        <source>&amp;Skript...</source>
        <translation>Scr&amp;ipt...</translation>
    </message>
    <message>
        <source>Öffnet ein Fenster, in dem Skripte geschrieben und ausgeführt werden</source>
        <translation>Abre una ventana en la que se escriben y ejecutan scripts</translation>
    </message>
    <message>
        <source>&amp;Einstellungen...</source>
        <translation>&amp;Ajustes...</translation>
    </message>
    <message>
        <source>Sprache, Schrift, Tasten, Sicherung</source>
        <translation>Idioma, letra, teclas, copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Nächste offene Zeile</source>
        <translation>&amp;Siguiente fila abierta</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt</source>
        <translation>Va a la siguiente fila que necesita una decisión, también en el siguiente proyecto</translation>
    </message>
    <message>
        <source>&amp;Vorige offene Zeile</source>
        <translation>Fila &amp;abierta anterior</translation>
    </message>
    <message>
        <source>Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt</source>
        <translation>Va a la fila anterior que necesita una decisión, también en el proyecto anterior</translation>
    </message>
    <message>
        <source>&amp;Gehe zu Zeile...</source>
        <translation>Ir a la &amp;fila...</translation>
    </message>
    <message>
        <source>Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung</source>
        <translation>Busca una fila del proyecto por número o designación</translation>
    </message>
    <message>
        <source>&amp;Andere Tabelle</source>
        <translation>La &amp;otra tabla</translation>
    </message>
    <message>
        <source>Wechselt zwischen der alten und der neuen Tabelle</source>
        <translation>Cambia entre la tabla antigua y la nueva</translation>
    </message>
    <message>
        <source>&amp;Finden...</source>
        <translation>&amp;Encontrar...</translation>
    </message>
    <message>
        <source>Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter</source>
        <translation>Encuentra proyectos, filas, comandos y ajustes por partes de las palabras</translation>
    </message>
    <message>
        <source>&amp;Muster der Unterschiede</source>
        <translation>&amp;Patrones de diferencias</translation>
    </message>
    <message>
        <source>Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden</source>
        <translation>Muestra en qué se diferencian las filas abiertas de sus propuestas</translation>
    </message>
    <message>
        <source>&amp;Alt und neu</source>
        <translation>&amp;Antiguo y nuevo</translation>
    </message>
    <message>
        <source>Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten</source>
        <translation>Muestra los valores antiguos y nuevos de la fila uno al lado del otro, y sus candidatas</translation>
    </message>
    <message>
        <source>Muster &amp;bestätigen...</source>
        <translation>&amp;Confirmar patrón...</translation>
    </message>
    <message>
        <source>Bestätigt alle Zeilen des gewählten Musters in einem Schritt</source>
        <translation>Confirma en un paso todas las filas del patrón elegido</translation>
    </message>
    <message>
        <source>Zeile &amp;herausnehmen</source>
        <translation>&amp;Excluir fila</translation>
    </message>
    <message>
        <source>Die Zeile wird nicht mit den anderen des Musters bestätigt</source>
        <translation>La fila no se confirma con las demás del patrón</translation>
    </message>
    <message>
        <source>&amp;Nächste Zeile des Musters</source>
        <translation>&amp;Siguiente fila del patrón</translation>
    </message>
    <message>
        <source>Geht zur nächsten offenen Zeile des gewählten Musters</source>
        <translation>Va a la siguiente fila abierta del patrón elegido</translation>
    </message>
    <message>
        <source>&amp;Vorige Zeile des Musters</source>
        <translation>&amp;Fila anterior del patrón</translation>
    </message>
    <message>
        <source>Geht zur vorigen offenen Zeile des gewählten Musters</source>
        <translation>Va a la fila abierta anterior del patrón elegido</translation>
    </message>
    <message>
        <source>Nächstes Mus&amp;ter</source>
        <translation>S&amp;iguiente patrón</translation>
    </message>
    <message>
        <source>Wählt das nächste Muster der Liste</source>
        <translation>Elige el siguiente patrón de la lista</translation>
    </message>
    <message>
        <source>&amp;Unsicherste zuerst</source>
        <translation>Primero &amp;las más inciertas</translation>
    </message>
    <message>
        <source>Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort</source>
        <translation>Las filas abiertas vienen por el riesgo de error y no por su lugar</translation>
    </message>
    <message>
        <source>Na&amp;chbarschaft</source>
        <translation>&amp;Vecindad</translation>
    </message>
    <message>
        <source>Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen</source>
        <translation>Muestra dónde no concuerdan las asignaciones de filas vecinas</translation>
    </message>
    <message>
        <source>&amp;Zeilen zurechtrücken</source>
        <translation>&amp;Recolocar filas</translation>
    </message>
    <message>
        <source>Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt</source>
        <translation>Corrige en un paso el hallazgo elegido de la vecindad</translation>
    </message>
    <message>
        <source>&amp;Ersetzungen...</source>
        <translation>Sus&amp;tituciones...</translation>
    </message>
    <message>
        <source>Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück</source>
        <translation>Acuerda sustituciones de valores para la versión del catálogo o las retira</translation>
    </message>
    <message>
        <source>&amp;Stichprobe...</source>
        <translation>&amp;Muestra...</translation>
    </message>
    <message>
        <source>Zieht Zeilen des gewählten Musters oder der markierten Zeilen, die einzeln beurteilt werden</source>
        <translation>Sortea filas del patrón elegido o de las filas seleccionadas para evaluarlas una a una</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;richtig</source>
        <translation>M&amp;uestra: correcta</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist richtig zugeordnet</source>
        <translation>La fila mostrada de la muestra está bien asignada</translation>
    </message>
    <message>
        <source>Stichprobe: &amp;falsch</source>
        <translation>Muestra: erró&amp;nea</translation>
    </message>
    <message>
        <source>Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet</source>
        <translation>La fila mostrada de la muestra está mal asignada; la muestra termina</translation>
    </message>
    <message>
        <source>Kandidat &amp;1</source>
        <translation>Candidata &amp;1</translation>
    </message>
    <message>
        <source>Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn</source>
        <translation>Asigna esta candidata a la fila y la confirma</translation>
    </message>
    <message>
        <source>Kandidat &amp;2</source>
        <translation>Candidata &amp;2</translation>
    </message>
    <message>
        <source>Kandidat &amp;3</source>
        <translation>Candidata &amp;3</translation>
    </message>
    <message>
        <source>Kandidat &amp;4</source>
        <translation>Candidata &amp;4</translation>
    </message>
    <message>
        <source>Kandidat &amp;5</source>
        <translation>Candidata &amp;5</translation>
    </message>
    <message>
        <source>Wertebereich der Zeile</source>
        <translation>Rango de valores de la fila</translation>
    </message>
    <message>
        <source>Zeigt, welche Werte des alten Bereichs neue Zeilen haben</source>
        <translation>Muestra qué valores del rango antiguo tienen filas nuevas</translation>
    </message>
    <message>
        <source>&amp;Konflikte</source>
        <translation>C&amp;onflictos</translation>
    </message>
    <message>
        <source>Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben</source>
        <translation>Muestra las filas que dos partes decidieron de forma distinta</translation>
    </message>
    <message>
        <source>Nächster offener Konflikt</source>
        <translation>Siguiente conflicto pendiente</translation>
    </message>
    <message>
        <source>Geht zur nächsten Zeile, deren Konflikt noch offen ist</source>
        <translation>Va a la siguiente fila cuyo conflicto sigue pendiente</translation>
    </message>
    <message>
        <source>Konflikt: eigene Entscheidung</source>
        <translation>Conflicto: decisión propia</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die eigene Entscheidung</source>
        <translation>En este conflicto vale la decisión propia</translation>
    </message>
    <message>
        <source>Konflikt: andere Entscheidung</source>
        <translation>Conflicto: decisión ajena</translation>
    </message>
    <message>
        <source>In diesem Konflikt gilt die Entscheidung der anderen Seite</source>
        <translation>En este conflicto vale la decisión de la otra parte</translation>
    </message>
    <message>
        <source>Konflikt: neu entscheiden</source>
        <translation>Conflicto: decidir de nuevo</translation>
    </message>
    <message>
        <source>Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel</source>
        <translation>No vale ninguna de las decisiones; la fila queda de nuevo sin destino</translation>
    </message>
    <message>
        <source>Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte</source>
        <translation>Reconstruye la vista: árbol, estadísticas, tablas del disco</translation>
    </message>
    <message>
        <source>Hand&amp;buch</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch an der Stelle, um die es geht</source>
        <translation>Abre el manual en el lugar del que se trata</translation>
    </message>
    <message>
        <source>&amp;Tasten...</source>
        <translation>&amp;Teclas...</translation>
    </message>
    <message>
        <source>Zeigt und ändert die Tasten aller Befehle</source>
        <translation>Muestra y cambia las teclas de todos los comandos</translation>
    </message>
    <message>
        <source>&amp;Hinweis zu dieser Stelle</source>
        <translation>&amp;Indicación sobre este lugar</translation>
    </message>
    <message>
        <source>Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum die Zeile ihren Zustand hat</source>
        <translation>Muestra la indicación allí adonde van las teclas: en una tabla, por qué la fila tiene su estado</translation>
    </message>
    <message>
        <source>&amp;Rundgang</source>
        <translation>&amp;Recorrido</translation>
    </message>
    <message>
        <source>Zeigt in wenigen Schritten, wo was liegt</source>
        <translation>Muestra en pocos pasos dónde está cada cosa</translation>
    </message>
    <message>
        <source>Über &amp;dieses Programm</source>
        <translation>&amp;Acerca de este programa</translation>
    </message>
    <message>
        <source>Version und Verzeichnisse</source>
        <translation>Versión y directorios</translation>
    </message>
    <message>
        <source>Schritte...</source>
        <translation>Pasos...</translation>
    </message>
    <message>
        <source>Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne zurück</source>
        <translation>Muestra todos los pasos, también de sesiones anteriores, y deshace cualquiera</translation>
    </message>
    <message>
        <source>Nächstes Projekt mit offenen Zeilen</source>
        <translation>Siguiente proyecto con filas abiertas</translation>
    </message>
    <message>
        <source>Geht zum nächsten Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va al siguiente proyecto en el que hay algo que decidir</translation>
    </message>
    <message>
        <source>Voriges Projekt mit offenen Zeilen</source>
        <translation>Proyecto anterior con filas abiertas</translation>
    </message>
    <message>
        <source>Geht zum vorigen Projekt, in dem etwas zu entscheiden ist</source>
        <translation>Va al proyecto anterior en el que hay algo que decidir</translation>
    </message>
    <message>
        <source>Filter über alle Zeilen</source>
        <translation>Filtro sobre todas las filas</translation>
    </message>
    <message>
        <source>Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; F8 geht durch sie</source>
        <translation>Elige filas de todos los proyectos por estado, motivo, diferencia y persona; F8 las recorre</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie</source>
        <translation>Muestra las páginas de la tabla a la vista y las imprime</translation>
    </message>
    <message>
        <source>Zeigt die Seiten des Berichts und druckt sie</source>
        <translation>Muestra las páginas del informe y las imprime</translation>
    </message>
    <message>
        <source>Bericht drucken...</source>
        <translation>Imprimir el informe...</translation>
    </message>
    <message>
        <source>Entscheidungen übernehmen...</source>
        <translation>Adoptar decisiones...</translation>
    </message>
    <message>
        <source>Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon bestätigt wurde, in einem Schritt</source>
        <translation>Adopta de un mapeo anterior, en un solo paso, lo que ya se confirmó para la misma versión antigua</translation>
    </message>
</context>
</TS>
