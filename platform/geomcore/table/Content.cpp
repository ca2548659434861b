#include "Content.h"

#include "ContentData.h"
#include "ContentStructure.h"
#include "LayerI.h"
#include "SignalConnect.h"
#include "TableData.h"
#include "TabOptions.h"

namespace VKTab {

Content::Content()
    : d(std::make_shared<ContentData>())
{
}

Content::Content(std::shared_ptr<ContentData> data)
    : d(std::move(data))
{
}

Content::Content(const Content &other) = default;
Content &Content::operator=(const Content &other) = default;
Content::~Content() = default;

bool Content::isValid() const
{
    return d && d->structure()->isValid();
}

Line Content::getLine(const LineId &id, bool detached) const
{
    if (!d)
        return {};
    auto structure = d->structure();
    const LineInfo info = structure->lineInfo(id);
    Line line(d, std::move(structure), info);
    if (detached && info.isValid())
        line.m_overlay = std::make_unique<Line::Overlay>();
    return line;
}

LineInfo Content::getLineInfo(const LineId &id) const
{
    return d ? d->structure()->lineInfo(id) : LineInfo();
}

QVector<LineId> Content::getLineIdList() const
{
    return d ? d->structure()->allLines()->ids() : QVector<LineId>();
}

QList<LineInfo> Content::getLineInfoList() const
{
    const auto file = getFileLayer();
    return file ? file->getLineInfoList() : QList<LineInfo>();
}

int Content::getLineCount() const
{
    return d ? d->structure()->allLines()->count() : 0;
}

LineMapping Content::getLineMapping() const
{
    return d ? LineMapping(d->order()) : LineMapping();
}

bool Content::isLineVisible(const LineId &id) const
{
    return d && d->order()->contains(getLineInfo(id).getRow());
}

QList<Var> Content::getVarList() const
{
    return d ? d->structure()->vars() : QList<Var>();
}

Var Content::getVar(QStringView name) const
{
    return d ? d->structure()->findVar(name) : Var();
}

Var Content::getVar(const VarId &id) const
{
    return d ? d->structure()->findVar(id) : Var();
}

ColumnMapping Content::getColumnMapping() const
{
    return d ? ColumnMapping(d->structure()->columnOrder()) : ColumnMapping();
}

QString Content::getRangeText(const VarId &id, const LineId &line) const
{
    return d ? d->structure()->rangeText(id, line) : QString();
}

char Content::getDecimalChar(const VarId &id) const
{
    return d ? d->structure()->decimalChar(id) : '.';
}

QVariant Content::getKeyValue(KeyValueId id) const
{
    const auto file = getFileLayer();
    return file ? file->getKeyValue(id) : QVariant();
}

QVariant Content::getKeyValue(const QString &name) const
{
    const auto file = getFileLayer();
    return file ? file->getKeyValue(name) : QVariant();
}

QString Content::translateText(const QString &text, const VarId &id) const
{
    if (!d)
        return text;
    const auto structure = d->structure();
    if (const LayerI *layer = structure->layerOf(id))
        return layer->translateText(text, id);
    return structure->file() ? structure->file()->translateText(text, id) : text;
}

boost::shared_ptr<TabOptions> Content::getOptions() const
{
    return d ? d->options() : boost::shared_ptr<TabOptions>();
}

void Content::setOptions(const boost::shared_ptr<TabOptions> &options)
{
    if (d)
        d->setOptions(options);
}

LineId Content::getSelection() const
{
    return d ? d->selection() : LineId();
}

bool Content::setSelection(const LineId &id, bool notify)
{
    return d && d->setSelection(id, notify);
}

FilterBase Content::getFilter(const QString &className) const
{
    return d ? d->filter(className) : FilterBase();
}

void Content::setFilter(const FilterBase &filter)
{
    if (d)
        d->setFilter(filter);
}

void Content::invalidate(InvalidateFlags flags, bool notify)
{
    if (d)
        d->invalidate(flags, notify);
}

void Content::addLayer(const LayerI &layer)
{
    if (d)
        d->addLayer(layer);
}

boost::shared_ptr<LayerI> Content::getLayer(int layerType) const
{
    if (!d)
        return {};
    for (const auto &layer : d->structure()->allLayers()) {
        if (layer->getLayerType() == layerType)
            return layer;
    }
    return {};
}

boost::shared_ptr<FileLayer> Content::getFileLayer() const
{
    return d ? d->structure()->file() : boost::shared_ptr<FileLayer>();
}

boost::shared_ptr<BaseLayer> Content::getModifyLayer() const
{
    return d ? d->structure()->modify() : boost::shared_ptr<ModifyLayer>();
}

std::shared_ptr<const TableData> Content::getTableData() const
{
    return d ? d->structure()->table() : nullptr;
}

bool Content::isPlain() const
{
    return !d || d->structure()->modify()->isPlain();
}

void Content::setFileLayer(const boost::shared_ptr<FileLayer> &layer)
{
    if (!d)
        d = std::make_shared<ContentData>();
    d->setFileLayer(layer);
}

SignalConnect &Content::signalConnect() const
{
    static SignalConnect nobody{SignalConnect::Nobody()};
    return d ? d->signalConnect() : nobody;
}

ContentRef::ContentRef()
    : Content(nullptr)
{
}

ContentRef::ContentRef(const Content &content)
    : Content(content)
{
}

ContentRef::ContentRef(const ContentRef &other) = default;

ContentRef &ContentRef::operator=(const Content &content)
{
    Content::operator=(content);
    return *this;
}

ContentRef &ContentRef::operator=(const ContentRef &other) = default;
ContentRef::~ContentRef() = default;

} // namespace VKTab
