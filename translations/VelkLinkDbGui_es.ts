<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="de">
<context>
    <name>VelkLinkDbGui</name>
    <message>
        <source>%1 &lt;b&gt;(Konnte nicht gefunden werden)&lt;/b&gt;</source>
        <translation>%1 &lt;b&gt;(no se pudo encontrar)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;br /&gt;&lt;br /&gt;Von einem anderen Nutzer durchgeführte Änderung:</source>
        <translation>&lt;br /&gt;&lt;br /&gt;Cambio hecho por otro usuario:</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;La fila se marcó como descatalogada.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile existiert (lokal) nicht.</source>
        <translation>&lt;br /&gt;La fila se reasignó. La fila asignada de nuevo no existe (localmente).</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde als ausgelaufen markiert.</source>
        <translation>&lt;br /&gt;Esta fila se marcó como descatalogada.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Diese Zeile wurde der Zeile&lt;br /&gt;%1 des Projektes %2 zugewiesen.</source>
        <translation>&lt;br /&gt;Esta fila se asignó a la fila&lt;br /&gt;%1 del proyecto %2.</translation>
    </message>
    <message>
        <source>&lt;br /&gt;Neue Zuordnung: &lt;br /&gt;%3 des Projektes %4 &lt;br /&gt;.</source>
        <translation>&lt;br /&gt;Nueva asignación: &lt;br /&gt;%3 del proyecto %4 &lt;br /&gt;.</translation>
    </message>
    <message>
        <source>Aktualisierung des Datensatzes fehlgeschlagen!</source>
        <translation>¡No se pudo actualizar el registro!</translation>
    </message>
    <message>
        <source>Aktuell markierte Zeile zuordnen</source>
        <translation>Asignar la fila seleccionada</translation>
    </message>
    <message>
        <source>Aktuell zugeordnete Zeile</source>
        <translation>Fila asignada actualmente</translation>
    </message>
    <message>
        <source>Alle Zuordnungen bestätigen</source>
        <translation>Confirmar todas las asignaciones</translation>
    </message>
    <message>
        <source>Anlegen des Datensatzes fehlgeschlagen!</source>
        <translation>¡No se pudo crear el registro!</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche für diese Zeile zuordnen</source>
        <translation>Asignar los rangos de valores resueltos de esta fila</translation>
    </message>
    <message>
        <source>Aufgelöste Wertebereiche zuordnen</source>
        <translation>Asignar los rangos de valores resueltos</translation>
    </message>
    <message>
        <source>Aus der Auswahl (%1): %2</source>
        <translation>De la selección (%1): %2</translation>
    </message>
    <message>
        <source>Auswahl abbrechen</source>
        <translation>Cancelar la selección</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager</source>
        <translation>Selección al gestor de enlaces</translation>
    </message>
    <message>
        <source>Auswahl an Linkmanager senden</source>
        <translation>Enviar la selección al gestor de enlaces</translation>
    </message>
    <message>
        <source>Auswählen</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Automatisch zugeordnete Zeilen</source>
        <translation>Filas asignadas automáticamente</translation>
    </message>
    <message>
        <source>Baum gefiltert darstellen</source>
        <translation>Mostrar el árbol filtrado</translation>
    </message>
    <message>
        <source>Beantragen einer ERP-Nummer per Mail</source>
        <translation>Solicitar un número ERP por correo</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren</source>
        <translation>Generar una condición para la fila seleccionada y copiarla al portapapeles</translation>
    </message>
    <message>
        <source>Bedingung hinzufügen</source>
        <translation>Añadir condición</translation>
    </message>
    <message>
        <source>Bedingung löschen</source>
        <translation>Eliminar condición</translation>
    </message>
    <message>
        <source>Bedingungen</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.</source>
        <translation>Las condiciones y correspondencias de variables son propuestas. Valen en cuanto se confirme una fila del destino.</translation>
    </message>
    <message>
        <source>Benutzer authentifizieren/wechseln</source>
        <translation>Autenticar/cambiar de usuario</translation>
    </message>
    <message>
        <source>Bereits zugewiesene Zielprojekte überschreiben</source>
        <translation>Sobrescribir los proyectos de destino ya asignados</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Bestätigte Zuordnungen</source>
        <translation>Asignaciones confirmadas</translation>
    </message>
    <message>
        <source>Das Auflösen der Wertebereiche kann, abhängig von den gewählten Variablen und der Tabellengröße, sehr lange dauern.
Wirklich fortfahren?</source>
        <translation>Resolver los rangos de valores puede tardar mucho según las variables elegidas y el tamaño de la tabla.
¿Continuar realmente?</translation>
    </message>
    <message>
        <source>Das Teil konnte nicht gelöscht werden, da es von mehreren Assemblies referenziert wird!</source>
        <translation>¡No se pudo eliminar la pieza porque varios ensamblajes hacen referencia a ella!</translation>
    </message>
    <message>
        <source>Das Zielprojekt %1 existiert nicht mehr</source>
        <translation>El proyecto de destino %1 ya no existe</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde entfernt.</source>
        <translation>Se quitó el proyecto de destino con la ruta %1.</translation>
    </message>
    <message>
        <source>Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.</source>
        <translation>Se añadió el proyecto de destino con la ruta %1.</translation>
    </message>
    <message>
        <source>Dateinamen statt Beschreibungen anzeigen</source>
        <translation>Mostrar nombres de archivo en lugar de descripciones</translation>
    </message>
    <message>
        <source>Datensatz bearbeiten</source>
        <translation>Editar registro</translation>
    </message>
    <message>
        <source>Datensatz hinzufügen</source>
        <translation>Añadir registro</translation>
    </message>
    <message>
        <source>Datensatz löschen</source>
        <translation>Eliminar registro</translation>
    </message>
    <message>
        <source>Datensatz zur Linkdatenbank hinzufügen</source>
        <translation>Añadir un registro a la base de datos de enlaces</translation>
    </message>
    <message>
        <source>Der Algorithmus enthält Fehler:
</source>
        <translation>El algoritmo contiene errores:
</translation>
    </message>
    <message>
        <source>Der Aufruf von %1 ist fehlgeschlagen!</source>
        <translation>¡La llamada a %1 ha fallado!</translation>
    </message>
    <message>
        <source>Der Datensatz konnte nicht gelöscht werden!</source>
        <translation>¡No se pudo eliminar el registro!</translation>
    </message>
    <message>
        <source>Die Bedingungen für das Projekt %1 wurden geändert.</source>
        <translation>Se cambiaron las condiciones del proyecto %1.</translation>
    </message>
    <message>
        <source>Die Projektversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Projektdatum: %2, Neues Projektdatum: %3</source>
        <translation>Cambió la versión del proyecto de destino con la ruta %1.
  Fecha anterior del proyecto: %2, fecha nueva del proyecto: %3</translation>
    </message>
    <message>
        <source>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</source>
        <translation>No se pudo abrir la tabla del proyecto de origen.</translation>
    </message>
    <message>
        <source>Die Tabelle von mindestens einem Quellprojekt konnte nicht geöffnet werden.</source>
        <translation>No se pudo abrir la tabla de al menos un proyecto de origen.</translation>
    </message>
    <message>
        <source>Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde geändert.
  Altes Tabellendatum: %2, Neues Tabellendatum: %3</source>
        <translation>Cambió la versión de la tabla del proyecto de destino con la ruta %1.
  Fecha anterior de la tabla: %2, fecha nueva de la tabla: %3</translation>
    </message>
    <message>
        <source>Die Variable %1 existiert nicht in der Zieltabelle</source>
        <translation>La variable %1 no existe en la tabla de destino</translation>
    </message>
    <message>
        <source>Die Variablenzuordnung für das Projekt %1 wurde geändert.</source>
        <translation>Se cambió la correspondencia de variables del proyecto %1.</translation>
    </message>
    <message>
        <source>Die Zeile %1 wurde geändert.</source>
        <translation>Se cambió la fila %1.</translation>
    </message>
    <message>
        <source>Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese Zielprojekte können nicht gelesen werden: %1</source>
        <translation>Las filas no se han vuelto a asignar y quedan como están. No se pueden leer estos proyectos de destino: %1</translation>
    </message>
    <message>
        <source>DieVariable %1 existiert nicht in der Quelltabelle</source>
        <translation>La variable %1 no existe en la tabla de origen</translation>
    </message>
    <message>
        <source>Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt</source>
        <translation>Esta fila está descatalogada. El modelador lo ha confirmado</translation>
    </message>
    <message>
        <source>Diese Zeile konnte nicht zugeordnet werden</source>
        <translation>Esta fila no se pudo asignar</translation>
    </message>
    <message>
        <source>Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Esta fila se asignó automáticamente. La asignación debe confirmarse o corregirse</translation>
    </message>
    <message>
        <source>Diese Zuordnung wurde vom Modellierer bestätigt</source>
        <translation>El modelador ha confirmado esta asignación</translation>
    </message>
    <message>
        <source>Dieses Projekt der aktuell selektierten Zeile zuweisen</source>
        <translation>Asignar este proyecto a la fila seleccionada</translation>
    </message>
    <message>
        <source>Dokument-Liste</source>
        <translation>Lista de documentos</translation>
    </message>
    <message>
        <source>Durchgeführte Änderungen durch Update des ERP-Mappings: </source>
        <translation>Cambios hechos por la actualización del mapeo ERP: </translation>
    </message>
    <message>
        <source>ERP-Nummer beantragen</source>
        <translation>Solicitar número ERP</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Es existiert eine Wertebereichszuordnung für diese Zeile.
Zuordnung muss über 'Wertebereichszuordnung bearbeiten' verändert werden</source>
        <translation>Hay una asignación de rango de valores para esta fila.
La asignación debe cambiarse con 'Editar la asignación de rangos de valores'</translation>
    </message>
    <message>
        <source>Es existiert mindestens ein Konflikt.</source>
        <translation>Hay al menos un conflicto.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine bestätigte Zuordnung.</source>
        <translation>Hay al menos una asignación confirmada.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine nicht zugeordnete Zeile.</source>
        <translation>Hay al menos una fila sin asignar.</translation>
    </message>
    <message>
        <source>Es existiert mindestens eine unbestätigte Änderung.</source>
        <translation>Hay al menos un cambio sin confirmar.</translation>
    </message>
    <message>
        <source>Es konnten nicht alle Unterelemente gelöscht werden, da einige Unterelemente auch von anderen Assemblies referenziert werden!</source>
        <translation>¡No se pudieron eliminar todos los subelementos porque otros ensamblajes también hacen referencia a algunos de ellos!</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 entfernt.</source>
        <translation>Se quitó un mapeo del proyecto %1.</translation>
    </message>
    <message>
        <source>Es wurde ein Mapping für das Projekt %1 hinzugefügt.</source>
        <translation>Se añadió un mapeo del proyecto %1.</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Bedingung:
%1</source>
        <translation>Error al copiar la condición:
%1</translation>
    </message>
    <message>
        <source>Fehler beim Kopieren der Variablenzuordnung.
%1</source>
        <translation>Error al copiar la correspondencia de variables.
%1</translation>
    </message>
    <message>
        <source>Formel bearbeiten</source>
        <translation>Editar fórmula</translation>
    </message>
    <message>
        <source>Formel...</source>
        <translation>Fórmula...</translation>
    </message>
    <message>
        <source>Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden</source>
        <translation>Hay un conflicto en esta fila. La asignación debe confirmarse o corregirse</translation>
    </message>
    <message>
        <source>Gesamtanzahl Zeilen</source>
        <translation>Número total de filas</translation>
    </message>
    <message>
        <source>Gruppe auswählen</source>
        <translation>Seleccionar grupo</translation>
    </message>
    <message>
        <source>Katalog</source>
        <translation>Catálogo</translation>
    </message>
    <message>
        <source>Kein Projekt passt zur Auswahl unter dem Baum.
„%1“ ausschalten, um wieder alle Projekte zu sehen.</source>
        <translation>Ningún proyecto corresponde a la selección bajo el árbol.
Desactive «%1» para volver a ver todos los proyectos.</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>No se han encontrado errores</translation>
    </message>
    <message>
        <source>Keine Zeile ist ohne Zuweisung.
Ohne den Haken bei „%1“ sind alle Zeilen zu sehen.</source>
        <translation>Ninguna fila está sin asignación.
Sin la marca en «%1» se ven todas las filas.</translation>
    </message>
    <message>
        <source>Klassifizieren</source>
        <translation>Clasificar</translation>
    </message>
    <message>
        <source>Konflikte</source>
        <translation>Conflictos</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Legende anzeigen</source>
        <translation>Mostrar leyenda</translation>
    </message>
    <message>
        <source>Linkmanager</source>
        <translation>Gestor de enlaces</translation>
    </message>
    <message>
        <source>Linkmanager aufrufen</source>
        <translation>Abrir el gestor de enlaces</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Neu...</source>
        <translation>Nuevo...</translation>
    </message>
    <message>
        <source>Neuen Datensatz anlegen</source>
        <translation>Crear un registro nuevo</translation>
    </message>
    <message>
        <source>Neuen Datensatz einfügen (übernimmt die Werte des markierten Datensatzes)</source>
        <translation>Insertar un registro nuevo (toma los valores del registro seleccionado)</translation>
    </message>
    <message>
        <source>Nicht gefundene Zeilen</source>
        <translation>Filas no encontradas</translation>
    </message>
    <message>
        <source>Normbezeichnung</source>
        <translation>Denominación de la norma</translation>
    </message>
    <message>
        <source>Normnummer</source>
        <translation>Número de la norma</translation>
    </message>
    <message>
        <source>Nur Zeilen anzeigen, die mehrfach zugeordnet sind</source>
        <translation>Mostrar solo filas asignadas varias veces</translation>
    </message>
    <message>
        <source>Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind</source>
        <translation>Mostrar solo filas de la tabla original asignadas a esta fila</translation>
    </message>
    <message>
        <source>Pfad:</source>
        <translation>Ruta:</translation>
    </message>
    <message>
        <source>Projekt auswählen</source>
        <translation>Seleccionar proyecto</translation>
    </message>
    <message>
        <source>Projekt suchen oder auswählen</source>
        <translation>Buscar o seleccionar proyecto</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Projektpfad:</source>
        <translation>Ruta del proyecto:</translation>
    </message>
    <message>
        <source>Sie sind dabei, eine Assembly zu löschen, die Unterelemente enthält. Sollen alle Unterelemente ebenfalls gelöscht werden?</source>
        <translation>Está a punto de eliminar un ensamblaje que contiene subelementos. ¿Desea eliminar también todos los subelementos?</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Syntax prüfen</source>
        <translation>Comprobar sintaxis</translation>
    </message>
    <message>
        <source>Tabellenzeile auswählen</source>
        <translation>Seleccionar fila de la tabla</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable ignorieren</source>
        <translation>Ignorar variable</translation>
    </message>
    <message>
        <source>Variablenzuordnung</source>
        <translation>Correspondencia de variables</translation>
    </message>
    <message>
        <source>Variablenzuordnung hinzufügen</source>
        <translation>Añadir correspondencia de variables</translation>
    </message>
    <message>
        <source>Versteckte Spalten anzeigen</source>
        <translation>Mostrar columnas ocultas</translation>
    </message>
    <message>
        <source>Von Ihnen durchgeführte Änderungen, welche nicht übernommen werden konnten:</source>
        <translation>Cambios suyos que no se pudieron incorporar:</translation>
    </message>
    <message>
        <source>Von Ihnen geplante Änderung:</source>
        <translation>Cambio planeado por usted:</translation>
    </message>
    <message>
        <source>Vorzugsreihen  ein und ausschalten</source>
        <translation>Activar y desactivar las series preferentes</translation>
    </message>
    <message>
        <source>Vorzugsreihen An/Aus</source>
        <translation>Series preferentes sí/no</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Wertebereichsvariablen auswählen</source>
        <translation>Seleccionar variables con rango de valores</translation>
    </message>
    <message>
        <source>Wertebereichszuordnungen bearbeiten</source>
        <translation>Editar las asignaciones de rangos de valores</translation>
    </message>
    <message>
        <source>Wertkombinationen: %1</source>
        <translation>Combinaciones de valores: %1</translation>
    </message>
    <message>
        <source>XVARSET des markierten Dokuments:</source>
        <translation>XVARSET del documento seleccionado:</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit nicht zugeordneten Zeilen</source>
        <translation>Mostrar solo proyectos con filas sin asignar</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit unvollständigen Mappings</source>
        <translation>Mostrar solo proyectos con mapeos incompletos</translation>
    </message>
    <message>
        <source>Zeige nur Projekte mit zugeordneten Zeilen</source>
        <translation>Mostrar solo proyectos con filas asignadas</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Quellprojekt)</source>
        <translation>Mostrar solo filas sin asignar (proyecto de origen)</translation>
    </message>
    <message>
        <source>Zeige nur nicht zugewiesene Zeilen (Zielprojekt)</source>
        <translation>Mostrar solo filas sin asignar (proyecto de destino)</translation>
    </message>
    <message>
        <source>Zeile mit LineID %1 wird zugeordnet...</source>
        <translation>Asignando la fila con LineID %1...</translation>
    </message>
    <message>
        <source>Zeilen erneut zuweisen</source>
        <translation>Volver a asignar las filas</translation>
    </message>
    <message>
        <source>Zeilen werden neu zugewiesen</source>
        <translation>Reasignando las filas</translation>
    </message>
    <message>
        <source>Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, die nicht mehr passten: %4</source>
        <translation>Filas: %1 de %2 · abiertas que se asignarían: %3 · confirmadas que ya no encajarían: %4</translation>
    </message>
    <message>
        <source>Zeilennummer</source>
        <translation>Número de fila</translation>
    </message>
    <message>
        <source>Zielprojekt</source>
        <translation>Proyecto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt entfernen</source>
        <translation>Quitar proyecto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt hinzufügen</source>
        <translation>Añadir proyecto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt nach oben verschieben</source>
        <translation>Subir proyecto de destino</translation>
    </message>
    <message>
        <source>Zielprojekt nach unten verschieben</source>
        <translation>Bajar proyecto de destino</translation>
    </message>
    <message>
        <source>Zielvariable</source>
        <translation>Variable de destino</translation>
    </message>
    <message>
        <source>Zu überprüfende Zuordnungen</source>
        <translation>Asignaciones por comprobar</translation>
    </message>
    <message>
        <source>Zuordnung bestätigen</source>
        <translation>Confirmar la asignación</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben</source>
        <translation>Anular la asignación de esta fila</translation>
    </message>
    <message>
        <source>Zuordnung dieser Zeile aufheben und bestätigen</source>
        <translation>Anular la asignación de esta fila y confirmar</translation>
    </message>
    <message>
        <source>Zuordnung löschen</source>
        <translation>Eliminar correspondencia</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben</source>
        <translation>Anular la asignación a este proyecto</translation>
    </message>
    <message>
        <source>Zuordnung zu diesem Projekt aufheben und bestätigen (STRG + x)</source>
        <translation>Anular la asignación a este proyecto y confirmar (CTRL + x)</translation>
    </message>
    <message>
        <source>enthält Fehler!</source>
        <translation>¡contiene errores!</translation>
    </message>
    <message>
        <source>Übersicht</source>
        <translation>Resumen</translation>
    </message>
</context>
</TS>
