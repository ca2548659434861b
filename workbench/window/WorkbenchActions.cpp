#include "WorkbenchActions.h"

#include "KeyedActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>

#include <array>

namespace {

struct CommandRow
{
    WorkbenchActions::Command command;
    const char *name;
    const char *text;
    const char *tip;
    const char *shortcut; ///< portable text
    const char *icon;     ///< below ":/workbench/", without "_24.png"
    bool needsDocument;
    bool needsWriting;
};

constexpr std::array<CommandRow, WorkbenchActions::CommandCount> commandRows{{
    {WorkbenchActions::NewMapping, "fileNew",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Neues Mapping..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Legt aus zwei Katalogständen eine neue Mapping-Datei an"),
     "Ctrl+N", "new", false, false},
    {WorkbenchActions::OpenFile, "fileOpen", QT_TRANSLATE_NOOP("WorkbenchActions", "Ö&ffnen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Öffnet eine Mapping-Datei"), "Ctrl+O", "open", false,
     false},
    {WorkbenchActions::OpenExample, "fileExample",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Be&ispielkatalog öffnen"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Öffnet eine eigene Mapping-Datei für den mitgelieferten Beispielkatalog"),
     "", "", false, false},
    {WorkbenchActions::Save, "fileSave", QT_TRANSLATE_NOOP("WorkbenchActions", "&Speichern"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Schreibt alle Änderungen in die Mapping-Datei"),
     "Ctrl+S", "save", true, true},
    {WorkbenchActions::SaveAs, "fileSaveAs",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Speichern &unter..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Schreibt in eine andere Mapping-Datei"), "Ctrl+Shift+S",
     "", true, false},
    {WorkbenchActions::CloseFile, "fileClose", QT_TRANSLATE_NOOP("WorkbenchActions", "S&chließen"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Schließt die Mapping-Datei"), "Ctrl+W", "", true,
     false},
    {WorkbenchActions::CatalogRoots, "fileRoots",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Katalogverzeichnisse..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Wählt die Verzeichnisse des alten und des neuen Katalogstands"),
     "", "", true, false},
    {WorkbenchActions::ShareFile, "shareWith",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Gemeinsame Kopie..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Wählt die Kopie, über die mehrere an diesem Mapping arbeiten"),
     "", "", true, true},
    {WorkbenchActions::ShareUpdate, "shareUpdate",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Aktualisieren"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Übernimmt, was andere veröffentlicht haben"),
     "Ctrl+Shift+U", "", true, true},
    {WorkbenchActions::SharePublish, "sharePublish",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Veröffentlichen"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Gibt die eigenen Änderungen an die anderen weiter"),
     "Ctrl+Shift+P", "", true, true},
    {WorkbenchActions::ShareFolders, "shareFolders",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Ordner übernehmen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Sagt den anderen, welche Ordner man selbst bearbeitet"),
     "", "", true, true},
    {WorkbenchActions::ShareWho, "shareWho",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Wer arbeitet woran"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt, wer das Mapping offen hat und welche Ordner wem gehören"),
     "", "", true, false},
    {WorkbenchActions::ImportTables, "fileImport",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Tabellen i&mportieren..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Macht aus einem Ordner mit CSV-Dateien Projekte eines Katalogs"),
     "", "", false, false},
    {WorkbenchActions::ExportLines, "fileExport",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeilen e&xportieren..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Schreibt alle Zeilen des Stands mit ihren Zuordnungen in eine CSV-Datei"),
     "", "", true, false},
    {WorkbenchActions::WriteReport, "fileReport",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Be&richt..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Schreibt als PDF oder HTML, wie weit der Stand ist und warum Zeilen offen "
                       "sind"),
     "", "", true, false},
    {WorkbenchActions::PrintTable, "filePrint",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Drucken..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt die Seiten der Tabelle, die zu sehen ist, und druckt sie"),
     "Ctrl+P", "", true, false},
    {WorkbenchActions::PrintReport, "filePrintReport",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Bericht drucken..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeigt die Seiten des Berichts und druckt sie"), "", "",
     true, false},
    {WorkbenchActions::Quit, "fileQuit", QT_TRANSLATE_NOOP("WorkbenchActions", "&Beenden"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Beendet das Programm"), "Ctrl+Q", "", false, false},
    {WorkbenchActions::Undo, "editUndo", QT_TRANSLATE_NOOP("WorkbenchActions", "&Rückgängig"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Nimmt den letzten Schritt zurück"), "Ctrl+Z", "undo",
     true, true},
    {WorkbenchActions::Redo, "editRedo", QT_TRANSLATE_NOOP("WorkbenchActions", "&Wiederholen"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Führt den zurückgenommenen Schritt wieder aus"),
     "Ctrl+Shift+Z", "redo", true, true},
    {WorkbenchActions::Steps, "editSteps", QT_TRANSLATE_NOOP("WorkbenchActions", "Schritte..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Listet alle Schritte auf, auch die früherer Sitzungen, und nimmt einzelne "
                       "zurück"),
     "Ctrl+Alt+Z", "", true, false},
    {WorkbenchActions::ConfirmLines, "linesConfirm",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeilen &bestätigen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Bestätigt die Zuordnung der markierten oder aller gezeigten Zeilen in "
                       "einem Schritt"),
     "Ctrl+Shift+V", "confirm", true, true},
    {WorkbenchActions::ConfirmExpiredLines, "linesConfirmExpired",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeilen ohne Ziel als aus&gelaufen bestätigen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Bestätigt von den markierten oder allen gezeigten "
                                           "Zeilen die ohne Ziel als ausgelaufen"),
     "Ctrl+Shift+E", "", true, true},
    {WorkbenchActions::RemoveLines, "linesRemove",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zuordnungen &aufheben..."),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Hebt die Zuordnung der markierten oder aller gezeigten Zeilen in einem Schritt auf"),
     "Ctrl+Shift+X", "remove", true, true},
    {WorkbenchActions::RemoveConfirmLines, "linesRemoveConfirm",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zuordnungen aufheben und bestä&tigen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Die markierten oder alle gezeigten Zeilen sind "
                                           "ausgelaufen: hebt auf und bestätigt in einem Schritt"),
     "", "", true, true},
    {WorkbenchActions::AssignAll, "assignAll",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Alle Projekte &zuordnen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Sucht für alle Zeilen des Katalogs Zuordnungen; Bestätigtes bleibt"),
     "", "", true, true},
    {WorkbenchActions::CarryDecisions, "carryDecisions",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Entscheidungen übernehmen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Übernimmt aus einem früheren Mapping, was für denselben alten Stand schon "
                       "bestätigt wurde, in einem Schritt"),
     "", "", true, true},
    {WorkbenchActions::CheckValueRanges, "checkRanges",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Wertebereichszuordnungen &prüfen"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Vergleicht alle Wertebereichstexte mit den Tabellen der Zielprojekte"),
     "", "", true, false},
    {WorkbenchActions::EditScript, "editScript",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Skript..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Öffnet ein Fenster, in dem Skripte geschrieben und "
                                           "ausgeführt werden"),
     "Ctrl+Shift+R", "", false, false},
    {WorkbenchActions::Settings, "settings",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Einstellungen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Sprache, Schrift, Tasten, Sicherung"), "Ctrl+,", "",
     false, false},
    {WorkbenchActions::NextOpen, "goNext",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Nächste offene Zeile"),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Geht zur nächsten Zeile, die eine Entscheidung braucht, auch im nächsten Projekt"),
     "F8", "next", true, false},
    {WorkbenchActions::PreviousOpen, "goPrevious",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Vorige offene Zeile"),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Geht zur vorigen Zeile, die eine Entscheidung braucht, auch im vorigen Projekt"),
     "Shift+F8", "previous", true, false},
    {WorkbenchActions::NextProject, "goNextProject",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Nächstes Projekt mit offenen Zeilen"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Geht zum nächsten Projekt, in dem etwas zu entscheiden ist"),
     "Ctrl+F8", "", true, false},
    {WorkbenchActions::PreviousProject, "goPreviousProject",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Voriges Projekt mit offenen Zeilen"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Geht zum vorigen Projekt, in dem etwas zu entscheiden ist"),
     "Ctrl+Shift+F8", "", true, false},
    {WorkbenchActions::JumpToLine, "goLine",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Gehe zu Zeile..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Sucht eine Zeile des Projekts nach Nummer oder Bezeichnung"),
     "Ctrl+G", "jump", true, false},
    {WorkbenchActions::OtherTable, "goOtherTable",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Andere Tabelle"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Wechselt zwischen der alten und der neuen Tabelle"),
     "F4", "", true, false},
    {WorkbenchActions::Locate, "goLocate", QT_TRANSLATE_NOOP("WorkbenchActions", "&Finden..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Findet Projekte, Zeilen, Befehle und Einstellungen nach Teilen der Wörter"),
     "Ctrl+K", "", false, false},
    {WorkbenchActions::ReviewPatterns, "reviewPatterns",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Muster der Unterschiede"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt, worin sich die offenen Zeilen von ihren Vorschlägen unterscheiden"),
     "F7", "", true, false},
    {WorkbenchActions::ReviewDifferences, "reviewDifferences",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Alt und neu"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt alte und neue Werte der Zeile nebeneinander, und ihre Kandidaten"),
     "Shift+F7", "", true, false},
    {WorkbenchActions::FilterLines, "reviewFilter",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Filter über alle Zeilen"),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Wählt Zeilen aller Projekte nach Zustand, Grund, Unterschied und Bearbeiter; "
         "F8 geht durch sie"),
     "Ctrl+L", "", true, false},
    {WorkbenchActions::ConfirmPattern, "reviewConfirm",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Muster &bestätigen..."),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Bestätigt alle Zeilen des gewählten Musters in einem Schritt"),
     "Ctrl+Return", "", true, true},
    {WorkbenchActions::TakeOutLine, "reviewTakeOut",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeile &herausnehmen"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Die Zeile wird nicht mit den anderen des Musters bestätigt"),
     "Ctrl+D", "", true, false},
    {WorkbenchActions::NextInPattern, "reviewNext",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Nächste Zeile des Musters"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Geht zur nächsten offenen Zeile des gewählten Musters"),
     "F9", "", true, false},
    {WorkbenchActions::PreviousInPattern, "reviewPrevious",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Vorige Zeile des Musters"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Geht zur vorigen offenen Zeile des gewählten Musters"),
     "Shift+F9", "", true, false},
    {WorkbenchActions::NextPattern, "reviewNextPattern",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Nächstes Mus&ter"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Wählt das nächste Muster der Liste"), "Ctrl+F9", "",
     true, false},
    {WorkbenchActions::LeastSureFirst, "reviewLeastSure",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Unsicherste zuerst"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Offene Zeilen kommen nach der Gefahr eines Irrtums statt nach ihrem Ort"),
     "Ctrl+U", "", true, false},
    {WorkbenchActions::Neighbours, "reviewNeighbours",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Na&chbarschaft"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt, wo Zuordnungen benachbarter Zeilen nicht zueinander passen"),
     "Ctrl+F7", "", true, false},
    {WorkbenchActions::MendNeighbours, "reviewMend",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Zeilen zurechtrücken"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Behebt die gewählte Fundstelle der Nachbarschaft in einem Schritt"),
     "Ctrl+M", "", true, true},
    {WorkbenchActions::Replacements, "reviewReplacements",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Ersetzungen..."),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Vereinbart Ersetzungen von Werten für den Katalogstand oder zieht sie zurück"),
     "Ctrl+E", "", true, true},
    {WorkbenchActions::StartSample, "sampleStart",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Stichprobe..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zieht Zeilen des gewählten Musters oder der markierten "
                                           "Zeilen, die einzeln beurteilt werden"),
     "Ctrl+T", "", true, true},
    {WorkbenchActions::SampleRight, "sampleRight",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Stichprobe: &richtig"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Die gezeigte Zeile der Stichprobe ist richtig zugeordnet"),
     "+", "", true, true},
    {WorkbenchActions::SampleWrong, "sampleWrong",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Stichprobe: &falsch"),
     QT_TRANSLATE_NOOP(
         "WorkbenchActions",
         "Die gezeigte Zeile der Stichprobe ist falsch zugeordnet; die Stichprobe endet"),
     "-", "", true, true},
    {WorkbenchActions::TakeCandidate1, "candidate1",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Kandidat &1"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn"),
     "1", "", true, true},
    {WorkbenchActions::TakeCandidate2, "candidate2",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Kandidat &2"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn"),
     "2", "", true, true},
    {WorkbenchActions::TakeCandidate3, "candidate3",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Kandidat &3"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn"),
     "3", "", true, true},
    {WorkbenchActions::TakeCandidate4, "candidate4",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Kandidat &4"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn"),
     "4", "", true, true},
    {WorkbenchActions::TakeCandidate5, "candidate5",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Kandidat &5"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Ordnet der Zeile diesen Kandidaten zu und bestätigt ihn"),
     "5", "", true, true},
    {WorkbenchActions::RangeOfLine, "rangeOfLine",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Wertebereich der Zeile"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt, welche Werte des alten Bereichs neue Zeilen haben"),
     "Ctrl+Shift+W", "", true, false},
    {WorkbenchActions::Conflicts, "conflicts", QT_TRANSLATE_NOOP("WorkbenchActions", "&Konflikte"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt die Zeilen, die zwei Seiten verschieden entschieden haben"),
     "F6", "", true, false},
    {WorkbenchActions::NextConflict, "conflictNext",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Nächster offener Konflikt"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Geht zur nächsten Zeile, deren Konflikt noch offen ist"),
     "Ctrl+F6", "", true, false},
    {WorkbenchActions::ConflictOurs, "conflictOurs",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Konflikt: eigene Entscheidung"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "In diesem Konflikt gilt die eigene Entscheidung"),
     "Ctrl+1", "", true, true},
    {WorkbenchActions::ConflictTheirs, "conflictTheirs",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Konflikt: andere Entscheidung"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "In diesem Konflikt gilt die Entscheidung der anderen Seite"),
     "Ctrl+2", "", true, true},
    {WorkbenchActions::ConflictAnew, "conflictAnew",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Konflikt: neu entscheiden"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Keine der Entscheidungen gilt; die Zeile ist wieder ohne Ziel"),
     "Ctrl+3", "", true, true},
    {WorkbenchActions::Refresh, "viewRefresh",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Aktualisieren"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Baut die Anzeige neu auf: Baum, Statistik, Tabellen von der Platte"),
     "F5", "refresh", true, false},
    {WorkbenchActions::ShowManual, "helpContents",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Hand&buch"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Öffnet das Handbuch an der Stelle, um die es geht"),
     "F1", "", false, false},
    {WorkbenchActions::ShowKeys, "helpKeys", QT_TRANSLATE_NOOP("WorkbenchActions", "&Tasten..."),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeigt und ändert die Tasten aller Befehle"), "Ctrl+F1",
     "", false, false},
    {WorkbenchActions::ShowReason, "helpReason",
     QT_TRANSLATE_NOOP("WorkbenchActions", "&Hinweis zu dieser Stelle"),
     QT_TRANSLATE_NOOP("WorkbenchActions",
                       "Zeigt den Hinweis dort, wo die Tasten hingehen: in einer Tabelle, warum "
                       "die Zeile ihren Zustand hat"),
     "Shift+F1", "", false, false},
    {WorkbenchActions::ShowTour, "helpTour", QT_TRANSLATE_NOOP("WorkbenchActions", "&Rundgang"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Zeigt in wenigen Schritten, wo was liegt"), "", "",
     false, false},
    {WorkbenchActions::About, "helpAbout",
     QT_TRANSLATE_NOOP("WorkbenchActions", "Über &dieses Programm"),
     QT_TRANSLATE_NOOP("WorkbenchActions", "Version und Verzeichnisse"), "", "", false, false},
}};

/// Rows are found by their command.
constexpr bool areInOrder()
{
    for (size_t i = 0; i < commandRows.size(); ++i) {
        if (size_t(commandRows[i].command) != i)
            return false;
    }
    return true;
}
static_assert(areInOrder());

QString translated(const char *text)
{
    return QCoreApplication::translate("WorkbenchActions", text);
}

QIcon iconOf(const CommandRow &row)
{
    return *row.icon ? QIcon(QStringLiteral(":/workbench/%1_24.png").arg(row.icon)) : QIcon();
}

} // namespace

WorkbenchActions::WorkbenchActions(QObject *parent)
    : QObject(parent)
{
    for (const CommandRow &row : commandRows) {
        auto *action = new QAction(iconOf(row), QString(), this);
        action->setObjectName(row.name);
        action->setShortcut(QKeySequence::fromString(row.shortcut, QKeySequence::PortableText));
        action->setShortcutContext(Qt::WindowShortcut);
        m_actions.append(action);
    }
    action(Quit)->setMenuRole(QAction::QuitRole);
    action(Settings)->setMenuRole(QAction::PreferencesRole);
    action(About)->setMenuRole(QAction::AboutRole);
    action(LeastSureFirst)->setCheckable(true);
    setDocumentOpen(false, false);
    retranslate();
}

void WorkbenchActions::setDocumentOpen(bool open, bool readOnly)
{
    for (int i = 0; i < CommandCount; ++i) {
        const CommandRow &row = commandRows[size_t(i)];
        if (i == Undo || i == Redo)
            continue;
        m_actions[i]->setEnabled((open || !row.needsDocument) && !(readOnly && row.needsWriting));
    }
}

void WorkbenchActions::setUndoTexts(const QString &undo, const QString &redo)
{
    m_undoText = undo;
    m_redoText = redo;
    action(Undo)->setEnabled(!undo.isEmpty());
    action(Redo)->setEnabled(!redo.isEmpty());
    writeUndoTexts();
}

void WorkbenchActions::writeUndoTexts()
{
    const auto write = [this](Command command, const QString &what) {
        const QString name = translated(commandRows[command].text);
        // A single ampersand would mark a key.
        QString quoted = what;
        quoted.replace('&', QLatin1String("&&"));
        action(command)->setText(what.isEmpty() ? name : name + ": " + quoted);
        QString plain = name;
        plain.remove('&');
        action(command)->setToolTip(what.isEmpty() ? plain : plain + ": " + what);
    };
    write(Undo, m_undoText);
    write(Redo, m_redoText);
}

void WorkbenchActions::retranslate()
{
    for (int i = 0; i < CommandCount; ++i) {
        QAction *const action = m_actions[i];
        const CommandRow &row = commandRows[size_t(i)];
        const QString tip = translated(row.tip);
        action->setText(translated(row.text));
        action->setStatusTip(tip);
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key));
        KeyedActions::setName(action, nameOf(Command(i)));
    }
    writeUndoTexts();
}

/// Among all other commands, where no menu says what it is about.
QString WorkbenchActions::nameOf(Command command)
{
    const auto plain = [](Command each) {
        return KeyedActions::plain(translated(commandRows[each].text));
    };
    const bool isOfShare = command > ShareFile && command <= ShareWho;
    return isOfShare ? plain(ShareFile) + QStringLiteral(": ") + plain(command) : plain(command);
}
