#include "ErpNumberColumn.h"

#include "ErpNumberLayer.h"

#include <geomcore/table/LayerType.h>

#include <QThreadPool>

namespace {

/// Beyond this many lines all of a project are read at once, so that sorting a large table by its
/// numbers is one question.
constexpr qsizetype mostLines = 500;

/// For a single line that is asked for by name.
class SingleNumbers : public VKTab::ErpDataSourceI
{
public:
    SingleNumbers(const std::shared_ptr<ErpNumberSourceI> &source, const QString &path)
        : m_source(source)
        , m_path(path)
    {
    }

    [[nodiscard]] QList<VKTab::Var> columns() const override { return {ErpNumberLayer::column()}; }
    [[nodiscard]] std::optional<QHash<QString, VKTab::Value>>
    values(const VKTab::LineId &line) override
    {
        const auto numbers = m_source->numbersOf(m_path, {line}, nullptr);
        if (!numbers)
            return std::nullopt;
        QHash<QString, VKTab::Value> values;
        if (const auto found = numbers->constFind(line); found != numbers->constEnd())
            values.insert(QString::fromLatin1(ErpNumberLayer::columnName), erpNumberText(*found));
        return values;
    }

private:
    const std::shared_ptr<ErpNumberSourceI> m_source;
    const QString m_path;
};

} // namespace

ErpNumberColumn::ErpNumberColumn(const std::shared_ptr<ErpNumberSourceI> &source, QObject *parent)
    : QObject(parent)
    , m_source(source)
    , m_pool(std::make_unique<QThreadPool>())
{
    m_pool->setMaxThreadCount(1);
}

ErpNumberColumn::~ErpNumberColumn()
{
    leave();
    m_pool->waitForDone();
}

void ErpNumberColumn::attach(const VKTab::Content &table, const QString &catalogPath)
{
    leave();
    if (!table.isValid())
        return;
    m_table = table;
    m_path = catalogPath;
    m_wishes = std::make_shared<ErpNumberWishes>(
        [this] { QMetaObject::invokeMethod(this, &ErpNumberColumn::read, Qt::QueuedConnection); });
    m_table.addLayer(
        ErpNumberLayer(std::make_shared<SingleNumbers>(m_source, catalogPath), m_wishes));
}

void ErpNumberColumn::leave()
{
    if (m_wishes)
        m_wishes->close();
    m_wishes.reset();
    m_table = VKTab::ContentRef();
    m_hasFailed = false;
}

void ErpNumberColumn::refresh()
{
    m_hasFailed = false;
    if (!m_wishes)
        return;
    m_wishes->forget();
    m_table.invalidate(VKTab::Content::InvalidateValues, true);
}

void ErpNumberColumn::read()
{
    if (m_isReading || !m_wishes)
        return;
    Outcome outcome{m_wishes->take(), {}, {}};
    if (outcome.lines.isEmpty())
        return;
    m_isReading = true;
    m_pool->start([this, source = m_source, path = m_path, wishes = m_wishes, outcome]() mutable {
        const bool all = outcome.lines.size() > mostLines;
        outcome.numbers =
            source->numbersOf(path, all ? QList<VKTab::LineId>() : outcome.lines, &outcome.error);
        QMetaObject::invokeMethod(
            this, [this, wishes, outcome] { enter(wishes, outcome); }, Qt::QueuedConnection);
    });
}

void ErpNumberColumn::enter(const std::shared_ptr<ErpNumberWishes> &wishes, const Outcome &outcome)
{
    m_isReading = false;
    if (wishes == m_wishes) {
        const auto layer =
            boost::dynamic_pointer_cast<ErpNumberLayer>(m_table.getLayer(VKTab::erpLayerType()));
        if (layer && outcome.numbers && layer->setNumbers(outcome.lines, *outcome.numbers))
            m_table.invalidate(VKTab::Content::InvalidateValues, true);
        if (!outcome.numbers && !std::exchange(m_hasFailed, true))
            Q_EMIT failed(outcome.error);
    }
    read(); // what was wished for meanwhile
}
