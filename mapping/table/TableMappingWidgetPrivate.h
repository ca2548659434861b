#pragma once

#include "DesignationLabels.h"
#include "LineDecisions.h"
#include "ShownLineStatus.h"
#include "TableLineFilters.h"
#include "TableMappingWidget.h"

#include <core/text/PPrivateData.h>
#include <core/text/ReferingObject.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/mapper/PrjMapperLineC.h>
#include <geomcore/table/TabOptions.h>

#include <boost/signals2/connection.hpp>

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>
#include <utility>

QT_BEGIN_NAMESPACE
class QAction;
class QCheckBox;
class QLabel;
class QMenu;
class QPushButton;
QT_END_NAMESPACE

class ComparedTables;
class LineLookUp;
class PrjMapperCheckResultC;
class RangeRun;
class TablePane;
class TargetTableView;
class VkTableView;

/// State of a TableMappingWidget, with the slots of its buttons, boxes and menus. Says what follows
/// what; how a pane looks, a target table is shown, lines are filtered, decided and looked up is
/// each the matter of a class.
class TableMappingWidgetPrivate : public QObject,
                                  public PPrivateData<TableMappingWidget>,
                                  public ReferingObject
{
    Q_OBJECT

public:
    using Varset = QHash<QString, MapVarValueC>;

    explicit TableMappingWidgetPrivate(TableMappingWidget *widget);
    ~TableMappingWidgetPrivate() override;

    void loadSourceTable(const VKTab::ContentRef &table, const PrjMappingC &newMapping,
                         const CatalogMappingC &catalog);
    /// What the mapper says of a line. An empty \a varset is filled with the line's values, and
    /// those of a found line are replaced by what its target sees of them. Without a release, and
    /// for a mapping that cannot be used, the result is not valid.
    PrjMapperLineC mapperLineFor(const VKTab::LineId &id, Varset &varset,
                                 PrjMapperCheckResultC *check) const;
    /// The same for who wants neither varset nor check; it need not read the target tables of lines
    /// that have their entry. \a values as \a varset above.
    [[nodiscard]] PrjMapperLineC mapperLineFor(const VKTab::LineId &id,
                                               const Varset &values = {}) const;
    [[nodiscard]] static QStringList valueRangeVariables(const VKTab::Content &table);
    /// Brings the status columns of the source table in line with the mapping.
    void updateLineStatus();
    /// Shows where a source line went: target table, labels, buttons.
    void showSourceLine(const VKTab::LineId &id);
    /// Brings map button and target labels in line with the selected target line.
    void showTargetSelection();
    /// Announces a changed mapping and takes it over.
    void publish(const PrjMappingC &changed);

    boost::shared_ptr<VKTab::TabOptions> options; ///< shared with both tables
    VkTableView *sourceView = nullptr;
    VkTableView *targetView = nullptr;
    ProjectMappingWidget *projectWidget = nullptr; ///< not owned, may be null
    bool showHiddenCols = false;
    const bool targetFromRepository = false; ///< decides the form of target paths
    QLabel *sourcePathLabel = nullptr;
    QLabel *targetPathLabel = nullptr;
    QLabel *sourceNumberLabel = nullptr;
    QLabel *targetNumberLabel = nullptr;
    DesignationLabels designationLabels;
    VKTab::LineId currentSourceLine; ///< the line last shown by showSourceLine
    QPushButton *btnMapLine = nullptr;
    QPushButton *btnRemoveLine = nullptr;
    QPushButton *btnRemoveVerifyLine = nullptr;
    QPushButton *btnResolvedRanges = nullptr;
    QPushButton *btnCondition = nullptr;
    QCheckBox *chkFilterSource = nullptr;
    QCheckBox *chkFilterTarget = nullptr;
    VKTab::ContentRef sourceTable;
    PrjMappingC mapping;
    CatalogMappingC catalogMapping;
    QHash<int, QString> conflictToolTips; ///< by source line number
    boost::signals2::scoped_connection sourceSelectedConnection;
    boost::signals2::scoped_connection sourceModifiedConnection;
    boost::signals2::scoped_connection targetSelectedConnection;
    boost::signals2::scoped_connection targetModifiedConnection;
    const QString valueRangeWarning;
    bool remoteViewerMode = false; ///< set from outside, read by nobody
    std::function<void(const QString &condition)> conditionListener;
    ComparedTables *compared = nullptr;

public Q_SLOTS:
    void onMapLineClicked();
    void onRemoveLineMappingClicked();
    void onRemoveVerifyLineMappingClicked();
    void onCreateConditionClicked();
    void onMapResolvedValueRangesClicked();
    void onVerifyAllClicked();
    void onMapLineValueRanges();
    void onToggleShowHiddenCols();
    void onChkFilterNotMappedLines(int state);
    void onChkFilterTargetLines(int state);
    void onFilterTargetTable();
    void onFilterSourceTable();

public:
    // Listeners to tables and views.
    int onSourceLineSelected(const VKTab::LineId &id, bool selected);
    int onTargetLineSelected(const VKTab::LineId &id, bool selected);
    int onSourcePopupShow(const VKTab::Content &content, QMenu *menu, int area, int row);
    int onTargetPopupShow(const VKTab::Content &content, QMenu *menu, int area, int row);
    int onStatusIconClicked(const VKTab::Content &content, int row, const QString &key);

    // Set-up.
    void setupStatusKeys(boost::shared_ptr<VKTab::TabOptions> &tableOptions) const;
    [[nodiscard]] QString lineToolTip(const VKTab::LineI &line) const;

    void remapLines();
    void runValueRangeMapping(const QStringList &names, const QVector<VKTab::LineId> &lines);
    void editValueRangeMapping(int row);

private:
    // Set-up
    [[nodiscard]] TablePane *createSourcePane();
    void setupKeys();
    [[nodiscard]] TablePane *createTargetPane();
    void connectSourceTable();
    void connectTargetTable(const VKTab::ContentRef &table);

    [[nodiscard]] LineLookUp lookUp() const;
    void clearTargetTable();
    [[nodiscard]] QString builtPath(const QString &targetPath) const;
    /// Indexes of the targets whose project the table is of.
    [[nodiscard]] QList<int> targetsOf(const VKTab::Content &table) const;
    [[nodiscard]] bool hasConflict(const PrjMapperLineC &line) const;
    [[nodiscard]] QStringList checkMessages(const VKTab::LineId &id) const;

    // showSourceLine
    [[nodiscard]] bool showSingleLine(const VKTab::LineId &id, bool *assignEnabled);
    [[nodiscard]] VKTab::ContentRef showTargetTable(const QString &path, bool *isReused);
    [[nodiscard]] VKTab::LineId lineOfTargetSelection() const;
    void showMapButton(const PrjMapperLineC &line, const VKTab::LineId &sourceLine, bool isCurrent);

    // Actions. Whoever hears of a change may close the widget.
    [[nodiscard]] QStringList conditionVariables() const;
    void mapLine(const VKTab::LineId &id, const QStringList &variables);
    void publish(const LineDecision &decision);
    void showFailingValues(const VKTab::LineId &id);
    [[nodiscard]] bool confirmsValueRangeRun() const;
    [[nodiscard]] QStringList chooseRangeVariables(const QVector<VKTab::LineId> &lines);
    QAction *addMenuRow(QMenu *menu, const QString &text, const QString &icon, const char *slot);
    [[nodiscard]] bool canConfirmSelection() const;

    TablePane *m_sourcePane = nullptr;
    TablePane *m_targetPane = nullptr;
    std::unique_ptr<TargetTableView> m_target;
    TableLineFilters m_filters;
    ShownLineStatus m_shownStatus;
    /// What the mapper said of the line that is being shown.
    std::optional<std::pair<VKTab::LineId, PrjMapperLineC>> m_lookedUp;
    RangeRun *m_run = nullptr; ///< while one is under way
};
