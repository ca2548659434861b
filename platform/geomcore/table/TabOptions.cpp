#include "TabOptions.h"

#include <boost/make_shared.hpp>
#include <core/config/PConfig.h>

namespace VKTab {

namespace {

/// Reads keys of one section; a key that the configuration does not have leaves its target alone.
class SectionReader
{
public:
    explicit SectionReader(const PConfig &config)
        : m_config(config)
    {
    }

    void read(const char *key, QString &target) const { target = value(key, target).GetString(); }
    void read(const char *key, bool &target) const
    {
        target = value(key, QString()).GetBool(target);
    }
    void read(const char *key, int &target) const { target = value(key, QString()).GetInt(target); }

private:
    [[nodiscard]] PConfigVal value(const char *key, const QString &other) const
    {
        return m_config.getItemValue(QString::fromLatin1(key), QStringLiteral("TabOptions"), other);
    }

    const PConfig &m_config;
};

} // namespace

TabOptions::TabOptions() = default;
TabOptions::TabOptions(const TabOptions &other) = default;
TabOptions::~TabOptions() = default;

void TabOptions::setShowOnlyPrefRanges(bool only)
{
    m_showOnlyPrefRanges = only;
}

void TabOptions::setPrefRangeCondition(const QString &condition)
{
    m_prefRangeCondition = condition;
}

void TabOptions::setPrefRangeReadOnly(int readOnly)
{
    m_prefRangeReadOnly = readOnly;
}

void TabOptions::setExportCondition(const QString &condition)
{
    m_exportCondition = condition;
}

void TabOptions::setExportOnlyDbRows(bool only)
{
    m_exportOnlyDbRows = only;
}

void TabOptions::setSelectExportableRow(bool select)
{
    m_selectExportableRow = select;
}

void TabOptions::setToolTipTextExportOn(const QString &text)
{
    m_toolTipTextExportOn = text;
}

void TabOptions::setToolTipTextExportOff(const QString &text)
{
    m_toolTipTextExportOff = text;
}

bool TabOptions::getShowOnlyPrefRanges() const
{
    return m_showOnlyPrefRanges;
}

QString TabOptions::getPrefRangeCondition() const
{
    return m_prefRangeCondition;
}

int TabOptions::getPrefRangeReadOnly() const
{
    return m_prefRangeReadOnly;
}

QString TabOptions::getExportCondition() const
{
    return m_exportCondition;
}

bool TabOptions::getExportOnlyDbRows() const
{
    return m_exportOnlyDbRows;
}

bool TabOptions::getSelectExportableRow() const
{
    return m_selectExportableRow;
}

QString TabOptions::getToolTipTextExportOn() const
{
    return m_toolTipTextExportOn;
}

QString TabOptions::getToolTipTextExportOff() const
{
    return m_toolTipTextExportOff;
}

QList<StatusKey> TabOptions::getStatusIcons() const
{
    return m_statusKeys;
}

StatusKey TabOptions::getStatusKey(const QString &name) const
{
    for (const StatusKey &key : m_statusKeys) {
        if (key.getName() == name)
            return key;
    }
    return {};
}

void TabOptions::setStatusKey(const StatusKey &key)
{
    if (!key.isValid())
        return;
    for (StatusKey &known : m_statusKeys) {
        if (known.getName() == key.getName()) {
            known = key;
            return;
        }
    }
    m_statusKeys.append(key);
}

boost::shared_ptr<TabOptions> TabOptions::clone() const
{
    return boost::make_shared<TabOptions>(*this);
}

void TabOptions::load(const PRefPtr<PConfig> &config)
{
    if (!config)
        return;
    const SectionReader section(*config);
    section.read("ShowOnlyPrefRanges", m_showOnlyPrefRanges);
    section.read("PrefRangeCondition", m_prefRangeCondition);
    section.read("PrefRangeReadOnly", m_prefRangeReadOnly);
    section.read("ExportCondition", m_exportCondition);
    section.read("ExportOnlyDbRows", m_exportOnlyDbRows);
    section.read("SelectExportableRow", m_selectExportableRow);
    section.read("ToolTipTextExportOn", m_toolTipTextExportOn);
    section.read("ToolTipTextExportOff", m_toolTipTextExportOff);
}

} // namespace VKTab
