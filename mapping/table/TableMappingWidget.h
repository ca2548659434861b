#pragma once

#include <mapping/project/PrjMappingWidgetBase.h>

#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <functional>
#include <vector>

class ProjectMappingWidget;
class TableMappingWidgetPrivate;
class VkTableView;

/// The column that edits the lines of one source project: its table on the left, and on the right
/// the table of the project that the selected line went to. Shows what became of every line and
/// changes it.
///
/// Every change is announced by projectMappingUpdated; the widget takes it over by itself. Its
/// views are found by the object names "sourceView" and "targetView", its buttons by "btnMapLine",
/// "btnRemoveLine", "btnRemoveVerifyLine", "btnResolvedRanges", "btnCondition" and "btnVerifyAll",
/// its boxes by "chkFilterSource", "chkFilterTarget" and "chkShowHiddenCols".
class TableMappingWidget : public PrjMappingWidgetBase
{
    Q_OBJECT

public:
    explicit TableMappingWidget(QWidget *parent);
    ~TableMappingWidget() override;

    /// Not owned; to be set once, before the first table. Without one no conditions are known, and
    /// nobody hears whether lines may be assigned by hand.
    void setProjectMappingWidget(ProjectMappingWidget *widget);
    /// Kept, but read by nobody: target tables come from the local catalogs in any case.
    void setRemoteViewerMode(bool remote);

    /// Shows a project: \a table is its table, \a catalog gives the dates of the release. A table
    /// that is not valid empties the widget.
    void loadSourceTable(const VKTab::ContentRef &table, const PrjMappingC &mapping,
                         const CatalogMappingC &catalog);
    /// The selected line of the source table; not valid if there is none.
    [[nodiscard]] VKTab::LineId selectedSourceLine() const;
    /// Numbers of the selected lines of the source table, in display order.
    [[nodiscard]] QList<int> selectedSourceLines() const;
    /// Gives the source table the keys.
    void focusLines();
    /// Source path of the mapping; empty before the first one.
    [[nodiscard]] QString sourcePath() const;

    [[nodiscard]] VkTableView *sourceView() const;
    [[nodiscard]] VkTableView *targetView() const;
    /// The selected line and its target line are compared: cells that differ are marked, both lines
    /// stand at one height, and the tables scroll together. Off at first.
    void setComparing(bool on);
    /// See CatalogMappingWidget::setLineRemarks().
    void
    setLineRemarks(const std::function<QString(const PrjMappingC &mapping, int line)> &remarks);
    /// Takes the filter by state away, and the one set from the menu.
    void showAllLines();
    /// In place of such filters: only these source lines, ascending by number.
    void showOnlyLines(const std::vector<int> &lines, const QString &ifNone);
    /// Called with each condition that was put on the clipboard.
    void setConditionListener(const std::function<void(const QString &condition)> &listener);

    /// Takes the mapping and brings the states of the lines, the target table and the buttons up to
    /// date. Touches only the lines whose entries changed.
    void onProjectMappingUpdated(const PrjMappingC &mapping) override;

public Q_SLOTS:
    /// Keeps what is to be told of a source line in conflict. Texts live as long as the widget.
    void onTargetLineConflict(const QString &toolTipMessage, int lineId);
    /// Assigns all lines anew, except those that the modeller confirmed. Shows progress; a
    /// cancelled run keeps what it reached.
    void onRemapLinesClicked();

private:
    friend class TableMappingWidgetPrivate;
    TableMappingWidgetPrivate *const d;
};
