#include "LineView.h"

#include "CellText.h"
#include "ComputedColumns.h"
#include "Content.h"
#include "ContentData.h"
#include "ContentStructure.h"
#include "LayerType.h"
#include "Line.h"
#include "TableData.h"
#include <geomcore/value/NumberText.h>

namespace VKTab {

namespace {

int fileOffset()
{
    static const int offset = getLayerIdOffset(fileLayerType());
    return offset;
}

int fileEnd()
{
    static const int end = getLayerIdOffset(fileLayerType() + 1);
    return end;
}

} // namespace

LineView::LineView(const Line &line)
{
    if (!line.isValid())
        return;
    m_table = line.m_structure->table().get();
    m_modify = line.m_structure->modify().get();
    m_overlay = line.m_overlay.get();
    m_row = line.m_info.getRow();
}

LineView::LineView(const Content &content, const LineId &id)
{
    if (!content.d)
        return;
    const auto structure = content.d->structure();
    m_row = structure->lineInfo(id).getRow();
    if (m_row < 0)
        return;
    m_table = structure->table().get();
    m_modify = structure->modify().get();
}

LineId LineView::lineId() const
{
    return isValid() ? m_table->lineId(m_row) : LineId();
}

int LineView::columnCount() const
{
    return m_table ? static_cast<int>(m_table->descriptor().fields.size()) : 0;
}

bool LineView::isPlain() const
{
    if (m_overlay && !m_overlay->empty())
        return false;
    return !m_modify || m_modify->isPlain() || m_modify->isPlain(lineId());
}

std::string_view LineView::cell(int column, std::string &scratch) const
{
    if (!isValid() || column < 0 || column >= m_table->columnCount())
        return {};
    return m_table->cell(m_row, column, scratch);
}

std::string_view LineView::text(int column, std::string &scratch) const
{
    if (!isValid() || column < 0 || column >= columnCount())
        return {};
    if (column >= m_table->columnCount()) {
        m_table->computed().evaluate(*this, column, scratch);
        return scratch;
    }
    return takeShownInstead(column, scratch)
               ? shownText(column, scratch, scratch)
               : shownText(column, m_table->cell(m_row, column, scratch), scratch);
}

bool LineView::takeShownInstead(int column, std::string &text) const
{
    const auto instead = shownInstead(column);
    if (instead)
        text = instead->toString().toUtf8().toStdString();
    return instead.has_value();
}

std::string_view LineView::shownText(int column, std::string_view text, std::string &scratch) const
{
    if (m_table->isMissing(text))
        return {};
    return plainText(text, m_table->descriptor().fields.at(column), scratch);
}

Value LineView::value(int column) const
{
    std::string scratch;
    const std::string_view shown = text(column, scratch);
    if (shown.empty())
        return {};
    return QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
}

std::optional<double> LineView::number(int column) const
{
    std::string scratch;
    return parseNumber(text(column, scratch));
}

std::optional<Value> LineView::shownInstead(int column) const
{
    if (m_overlay) {
        const auto put = m_overlay->find(varIdOf(column));
        if (put != m_overlay->end())
            return put->second;
    }
    if (!m_modify || m_modify->isPlain())
        return std::nullopt;
    return m_modify->changedValue(varIdOf(column), lineId());
}

int LineView::columnOf(const VarId &id)
{
    const int value = id.value();
    return value >= fileOffset() && value < fileEnd() ? value - fileOffset() : -1;
}

VarId LineView::varIdOf(int column)
{
    return VarId(fileOffset() + column);
}

} // namespace VKTab
