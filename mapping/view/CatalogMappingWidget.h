#pragma once

#include <linkdbgui/VelkLinkDbGuiGlobal.h>

#include <geomcore/records/MappingChange.h>

#include <QWidget>

class ApplicationHandlerI;
class CatalogMappingHandlerI;
class CatalogMappingWidgetPrivate;

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
    /// True: target projects are shown from the catalog repository instead of the local catalogs.
    void setRemoteViewerMode(bool remote);

    /// Where a target project is: below the local catalog root (the reference in the result stays
    /// as it is, for PPathName to resolve), or an address in the repository of the catalog that the
    /// path begins with. Empty if the path does not tell.
    [[nodiscard]] static QString buildTargetPath(bool local, const QString &targetPath);

private:
    friend class CatalogMappingWidgetPrivate;
    CatalogMappingWidgetPrivate *const d;
};
