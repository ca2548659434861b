#include "TargetTableView.h"

#include "LineIdColumnLayer.h"

#include <core/text/PPathName.h>
#include <geomcore/expression/toTabVarValues.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/ModifyLayer.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <algorithm>

TargetTableView::TargetTableView(VkTableView *view, VkTableView *sourceView)
    : m_view(view)
    , m_sourceView(sourceView)
{
}

VKTab::ContentRef TargetTableView::table() const
{
    return m_view->getTable();
}

void TargetTableView::clear()
{
    if (!(table() == VKTab::ContentRef()))
        m_view->setTable(VKTab::ContentRef());
    m_marked = VKTab::LineId();
}

bool TargetTableView::isShown(const QString &path) const
{
    const VKTab::ContentRef current = table();
    return current.isValid() &&
           PPathName(current.getKeyValue(VKTab::KeyProjectPath).toString()) == PPathName(path);
}

TargetTableView::Shown TargetTableView::show(const QString &path, const Reading &reading)
{
    if (!isShown(path))
        return {read(path, reading), false};
    if (m_view->model()->showHiddenVars() != reading.showHiddenCols)
        m_view->model()->setShowHiddenVars(reading.showHiddenCols);
    return {table(), true};
}

VKTab::ContentRef TargetTableView::read(const QString &path, const Reading &reading)
{
    VKTab::ContentRef content = VKTab::Content();
    m_view->model()->setShowHiddenVars(reading.showHiddenCols);
    if (!VKTab::readProjectTable(PPathName(path).native(), content,
                                 {.options = reading.options, .allLines = true}))
        return {};
    m_view->setTable(content);
    m_marked = VKTab::LineId();
    const double zoom = std::max(m_sourceView->getZoomFactor(), m_view->getZoomFactor());
    m_sourceView->setZoomFactor(zoom);
    m_view->setZoomFactor(zoom);
    if (reading.withLineNumbers)
        content.addLayer(LineIdColumnLayer());
    return content;
}

void TargetTableView::showHiddenLine(const VKTab::LineId &line) const
{
    VKTab::ContentRef shown = table();
    if (shown.isLineVisible(shown.getLineInfo(line).getLineId()))
        return;
    VKTab::FilterByLineId filter(shown.getFilter(VKTab::FilterByLineId::className()));
    if (!filter.getLineIdFilterUsed())
        return;
    filter.setLineIdFilterUsed(false);
    shown.setFilter(filter);
    shown.invalidate(VKTab::Content::InvalidateFilter, true);
}

void TargetTableView::showLine(int line, const QHash<QString, MapVarValueC> &values, bool givesWay)
{
    VKTab::ContentRef shown = table();
    if (givesWay)
        showHiddenLine(line);
    VKTab::Line target = shown.getLine(line, false);
    if (!values.isEmpty()) {
        const VKTab::Finder finder;
        finder.cmpLineWithValues(
            target, finder.toValueList(shown, toTabVarValues(values), VKTab::FilterAll));
        target.apply();
    }
    shown.setSelection(target.getLineInfo().getLineId(), true);
}

void TargetTableView::markSelection()
{
    const VKTab::ContentRef shown = table();
    const VKTab::LineId selected = shown.getSelection();
    if (!selected.isValid())
        return;
    const QString key = QStringLiteral("TargetMapping");
    // All lines but the one marked last have the empty text already.
    if (m_marked.isValid() && m_marked != selected)
        shown.getModifyLayer()->setLineKeyValue(m_marked, key, QStringLiteral(""));
    shown.getModifyLayer()->setLineKeyValue(selected, key, QStringLiteral("C"));
    m_marked = selected;
}
