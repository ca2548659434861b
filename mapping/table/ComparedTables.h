#pragma once

#include <geomcore/table/ContentRef.h>
#include <geomcore/value/LineId.h>

#include <QHash>
#include <QObject>
#include <QStringList>

class MapVarValueC;
class VkTableView;

/// Source and target table as they are compared: the pair of lines stands at one height with the
/// cells that differ marked, and while it does, the tables scroll together, sideways by the columns
/// that both have. Their text has one size. Does nothing until it is switched on.
class ComparedTables : public QObject
{
    Q_OBJECT

public:
    /// Neither view is owned.
    ComparedTables(VkTableView *source, VkTableView *target, QObject *parent);

    void setOn(bool on);
    /// The lines that are shown; \a values are those of the source line as the target sees them, by
    /// name.
    void show(const VKTab::LineId &source, const VKTab::LineId &target,
              const QHash<QString, MapVarValueC> &values);
    /// There is no pair.
    void clear();

    /// Whoever of the two was zoomed, the other one follows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QStringList differingVariables(const QHash<QString, MapVarValueC> &values) const;
    void align();
    static void bringIntoSight(const VkTableView &view, const VKTab::LineId &line);
    /// Without moving the table further than needed.
    void showFirst(const VkTableView &view, const VKTab::LineId &line);
    /// The other table follows sideways to the column that is the first one in sight.
    void followSideways(VkTableView *moved, VkTableView *other);
    void followDown(VkTableView *other, int by);

    VkTableView *const m_source;
    VkTableView *const m_target;
    VKTab::LineId m_sourceLine;
    VKTab::LineId m_targetLine; ///< not valid: no pair
    VKTab::ContentRef m_table;  ///< of the target that was shown last
    QStringList m_differing;
    int m_sourceHeight = 0; ///< of the scroll bars as they were last
    int m_targetHeight = 0;
    bool m_isOn = false;
    bool m_follows = false; ///< what moves now was moved by the other one
};
