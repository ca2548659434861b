#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <geomcore/records/MappingChange.h>
#include <geomcore/table/ContentRef.h>

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
QT_END_NAMESPACE

class ApplicationHandlerI;
class CatalogMappingHandlerI;
class CatalogMappingWidgetPrivate;
class VkTableView;

/// The mapping editor: on the left the catalog as a tree with filters and statistics, on the right
/// conflicts, targets and tables of the selected project. Every change of a mapping goes to the
/// handler; saving is the host's.
class VELKLINKDBGUI_EXPORT CatalogMappingWidget : public QWidget
{
    Q_OBJECT

public:
    /// Takes ownership of both handlers; \a applicationHandler may be null. Source paths are
    /// relative to the directory \a basePath. The widget has no parent after that: \a parent is not
    /// used.
    CatalogMappingWidget(const QString &basePath, CatalogMappingHandlerI *handler,
                         ApplicationHandlerI *applicationHandler, QWidget *parent);
    ~CatalogMappingWidget() override;

    /// Shows the handler's root node without a tree: for handlers whose root is a project.
    void hideTree();
    void hideStatistics();
    /// \a count leading components of a source path are cut off before it is joined to the base
    /// path.
    void setOptions(int count);
    /// Changes made here that clash with changes on the server. Before the first selection, and
    /// local ones first: the second of both calls marks the lines, once in the life of this widget.
    void setConflictedLocalChanges(const MappingChangeMap &changes);
    /// The changes on the server, see setConflictedLocalChanges.
    void setConflictedOnlineChanges(const MappingChangeMap &changes);
    /// Whether any mapping of the last release holds a line in conflict.
    [[nodiscard]] bool hasConflicts() const;
    /// True: targets get addresses in the catalog repository instead of local paths. The library
    /// reads no repository, so each target is then told as missing and has no table.
    void setRemoteViewerMode(bool remote);

    /// Where a target project is: below the local catalog root (the reference in the result stays
    /// as it is, for PPathName to resolve), or an address in the repository of the catalog that the
    /// path begins with. Empty if the path does not tell.
    [[nodiscard]] static QString buildTargetPath(bool local, const QString &path);

    // What a host needs to know of the editor and to do to it, without its inner widgets.

    /// Sends the signals of CatalogMappingNotifier: currentProjectChanged(),
    /// selectedLinesChanged(), onlyOpenProjectsChanged(bool), linesReassigned(),
    /// linesDecided(), conditionCopied(QString). Connected by name; lives as long as the widget.
    [[nodiscard]] QObject *notifier() const;

    /// Mapping of the project that was opened last, as the handler has it; not valid if none is or
    /// a directory was selected after it.
    [[nodiscard]] PrjMappingC currentProject() const;
    /// Selects a project in the tree and opens the directories on the way. A filter that hides it
    /// is taken away. False if the tree does not have it. An empty version stands for any.
    bool selectProject(const QString &sourcePath, const QString &sourceVersion = QString());
    /// The table of the project shown; not valid if there is none or it cannot be read.
    [[nodiscard]] VKTab::ContentRef sourceTable() const;
    /// Numbers of the selected source lines in display order.
    [[nodiscard]] QList<int> selectedLines() const;
    /// -1 if none or several are selected.
    [[nodiscard]] int currentLine() const;
    /// A filter that hides the line is taken away, if it is one by states or lines. False if the
    /// table does not have it.
    bool selectLine(int line);
    /// The keys go to the source table, or to the tree if no project is selected.
    void focusLines();
    /// The keys go to the target table if the source table has them, else to the source table. A
    /// table without a selected line gets a current one, which selects nothing.
    void focusOtherTable();
    /// The target table if the keys go to it, else the source table: for printing it. Null if it
    /// shows no table.
    [[nodiscard]] const VkTableView *tableInSight() const;
    /// Rows of the source table that are shown, all filters applied; 0 if no table is.
    [[nodiscard]] int shownLineCount() const;
    /// The line in a row, from 0, in display order; -1 for a row out of range.
    [[nodiscard]] int shownLine(int row) const;
    /// -1 if the line has no row.
    [[nodiscard]] int rowOfLine(int line) const;
    /// A filter of columns, states or lines leaves lines of the source table out.
    [[nodiscard]] bool linesAreFiltered() const;
    /// "NAME: text" for each column of the source table that has a filter.
    [[nodiscard]] QStringList columnFilters() const;

    /// Shows a mapping that changed behind the editor and that the handler has already: in place,
    /// or if it is the current project's and more than its lines changed, by opening the project
    /// anew. Statistics and tree follow in any case. Announces nothing and asks the handler for no
    /// change.
    void showMapping(const PrjMappingC &mapping);

    /// The tree's filter for projects with work left.
    void setOnlyOpenProjects(bool on);
    [[nodiscard]] bool onlyOpenProjects() const;
    /// Another filter of the tree, beside its own: only projects that it accepts. An empty one
    /// takes it away. Asked at each change of a filter, not at changes of mappings. \a ifNone is
    /// said in the tree while it has no project left: why, and how to get them back.
    void setProjectFilter(const std::function<bool(const PrjMappingC &mapping)> &accepts,
                          const QString &ifNone = QString());
    /// The source table shows only these lines, ascending by number, until another project is shown
    /// or the user chooses another filter of lines; none at all if there are none, and \a ifNone in
    /// their place.
    void showOnlyLines(const std::vector<int> &lines, const QString &ifNone = QString());
    /// See TableMappingWidget::setComparing().
    void setComparing(bool on);
    /// What the source table says of lines beside what the mapping does, with a mark at the number
    /// of the line; plain text, empty: nothing. Asked at any time; given again when it would say
    /// something else.
    void
    setLineRemarks(const std::function<QString(const PrjMappingC &mapping, int line)> &remarks);
    /// The source table shows all lines again that the filters of columns leave.
    void showAllLines();
    /// For the tables that are shown now.
    void setOnlyPreferredRanges(bool on);

    /// Paths of the tree's directories that are open, parents first.
    [[nodiscard]] QStringList expandedDirectories() const;
    /// Opens directories. One that is alone at the top is opened in any case.
    void expandDirectories(const QStringList &paths);
    /// Sizes of the panes.
    [[nodiscard]] QByteArray saveState() const;
    /// False for a state that cannot be read; then the panes get their standard sizes.
    bool restoreState(const QByteArray &state);

    enum class Pane { Tree, Targets, Lines };
    /// To place something over it; null if it is hidden.
    [[nodiscard]] QWidget *pane(Pane which) const;
    /// The tree's data. The widget never deletes it; who deletes the widget may, after that.
    [[nodiscard]] QAbstractItemModel *treeModel() const;

private:
    friend class CatalogMappingWidgetPrivate;
    CatalogMappingWidgetPrivate *const d;
};
