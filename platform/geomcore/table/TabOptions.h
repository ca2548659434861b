#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/StatusKey.h>

#include <boost/shared_ptr.hpp>
#include <core/text/PRefPtr.h>

#include <QList>
#include <QString>

class PConfig;

namespace VKTab {

/// Options of one or several tables, with the definitions of their status columns. Belongs to the
/// tables' thread. The order of the virtual operations is part of the interface.
class VELKGEOMCORE_EXPORT TabOptions
{
public:
    TabOptions();
    TabOptions(const TabOptions &other);
    TabOptions &operator=(const TabOptions &) = delete;

    virtual ~TabOptions();
    /// Offer only preferred values of ranges.
    virtual void setShowOnlyPrefRanges(bool only);
    /// Condition that tells which values are preferred.
    virtual void setPrefRangeCondition(const QString &condition);
    /// 0 = the user may switch, 1 = the switch is locked.
    virtual void setPrefRangeReadOnly(int readOnly);
    virtual void setExportCondition(const QString &condition);
    virtual void setExportOnlyDbRows(bool only);
    virtual void setSelectExportableRow(bool select);
    virtual void setToolTipTextExportOn(const QString &text);
    virtual void setToolTipTextExportOff(const QString &text);
    [[nodiscard]] virtual bool getShowOnlyPrefRanges() const;
    [[nodiscard]] virtual QString getPrefRangeCondition() const;
    [[nodiscard]] virtual int getPrefRangeReadOnly() const;
    [[nodiscard]] virtual QString getExportCondition() const;
    [[nodiscard]] virtual bool getExportOnlyDbRows() const;
    [[nodiscard]] virtual bool getSelectExportableRow() const;
    [[nodiscard]] virtual QString getToolTipTextExportOn() const;
    [[nodiscard]] virtual QString getToolTipTextExportOff() const;
    /// The status columns in the order in which they were set.
    [[nodiscard]] virtual QList<StatusKey> getStatusIcons() const;
    /// Not valid if there is none of that name.
    [[nodiscard]] virtual StatusKey getStatusKey(const QString &name) const;
    /// Adds a key by value, so all its values must be added before; replaces one of the same name.
    virtual void setStatusKey(const StatusKey &key);
    [[nodiscard]] virtual boost::shared_ptr<TabOptions> clone() const;

    /// Status columns are shown. False at first.
    [[nodiscard]] bool isStatusColumnsShown() const { return m_statusColumnsShown; }
    void setStatusColumnsShown(bool shown) { m_statusColumnsShown = shown; }

    /// Reads the section "TabOptions": ShowOnlyPrefRanges, PrefRangeCondition, PrefRangeReadOnly,
    /// ExportCondition, ExportOnlyDbRows, SelectExportableRow, ToolTipTextExportOn,
    /// ToolTipTextExportOff. A missing key, and a null configuration, leave what is set.
    void load(const PRefPtr<PConfig> &config);

private:
    bool m_statusColumnsShown = false;
    bool m_showOnlyPrefRanges = false;
    bool m_exportOnlyDbRows = false;
    bool m_selectExportableRow = false;
    int m_prefRangeReadOnly = 0;
    QString m_prefRangeCondition;
    QString m_exportCondition;
    QString m_toolTipTextExportOn;
    QString m_toolTipTextExportOff;
    QList<StatusKey> m_statusKeys;
};

} // namespace VKTab
