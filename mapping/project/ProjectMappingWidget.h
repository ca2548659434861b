#pragma once

#include "PrjMappingWidgetBase.h"

#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <QStringList>

#include <functional>

class ApplicationHandlerI;
class ProjectMappingWidgetPrivate;
class TableMappingWidget;

/// The column that edits the ordered targets of one source project: a panel for each target with a
/// path, buttons to add a target and to assign the lines anew.
class ProjectMappingWidget : public PrjMappingWidgetBase
{
    Q_OBJECT

public:
    explicit ProjectMappingWidget(QWidget *parent);
    ~ProjectMappingWidget() override;

    /// Shows one project. \a content is its table. A target whose project is gone is told with a
    /// message and shown all the same; the mapping stays as it is.
    void loadSourceProject(const PrjMappingC &mapping, const VKTab::ContentRef &content,
                           const CatalogMappingC &catalog);
    /// Path of the project shown, empty if there is none.
    [[nodiscard]] QString sourcePath() const;
    /// The column's own copy.
    [[nodiscard]] PrjMappingC mapping() const;
    /// Names of the variables that the targets' conditions read, each name once.
    [[nodiscard]] QStringList collectConditionVariables() const;
    /// For the assign buttons of the targets, now and later.
    void setAssignEnabled(bool enabled);

    /// Not owned; to be set once, before the first project. \a application may be null.
    void setApplicationHandler(ApplicationHandlerI *application);
    /// Not owned; to be set once, before the first project. Its class stands above this one, so
    /// only who calls this has to know it.
    template<class Table>
    void setTableMappingWidget(Table *widget)
    {
        setTableColumn(
            widget, [widget] { return widget->selectedSourceLine(); },
            [widget] { return widget->selectedSourceLines(); }, [widget] { widget->focusLines(); });
    }
    /// True: targets get addresses in the catalog repository, from the next project on. The library
    /// reads no repository, so they count as missing.
    void setRemoteViewerMode(bool remote);

    /// Replaces the mapping; the panels are not made anew. A slot of the base alone.
    void onProjectMappingUpdated(const PrjMappingC &mapping) override;

private:
    void setTableColumn(TableMappingWidget *widget,
                        const std::function<VKTab::LineId()> &selectedLine,
                        const std::function<QList<int>()> &selectedLines,
                        const std::function<void()> &focusLines);

    friend class ProjectMappingWidgetPrivate;
    ProjectMappingWidgetPrivate *const d;
};
