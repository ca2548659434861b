#include "SearchRun.h"

#include "CellCondition.h"
#include "LineMatcher.h"
#include "SearchText.h"

#include <QDir>

#include <algorithm>
#include <unordered_set>

namespace {

/// Numbers are compared to ten digits; the index's own comparison leaves that much room.
constexpr double Room = 1e-9;

/// What an index entry must fulfil to be looked at: least and greatest of its numbers.
QString numberFilter(const CatalogSearchCondition &condition, QVariantList &values)
{
    const auto low = CellCondition::number(condition.low);
    const auto high = CellCondition::number(condition.high);
    QStringList parts;
    const auto atLeast = [&](double number) {
        parts.append(QStringLiteral(" AND greatest >= ?"));
        values.append(number - std::abs(number) * Room);
    };
    const auto atMost = [&](double number) {
        parts.append(QStringLiteral(" AND least <= ?"));
        values.append(number + std::abs(number) * Room);
    };
    switch (condition.op) {
    case CatalogSearchCondition::Equal:
    case CatalogSearchCondition::Greater:
    case CatalogSearchCondition::GreaterEqual:
        if (low)
            atLeast(*low);
        if (low && condition.op == CatalogSearchCondition::Equal)
            atMost(*low);
        break;
    case CatalogSearchCondition::Less:
    case CatalogSearchCondition::LessEqual:
        if (low)
            atMost(*low);
        break;
    case CatalogSearchCondition::Between:
        // With a text at one end both are compared as texts.
        if ((!low && !condition.low.trimmed().isEmpty()) ||
            (!high && !condition.high.trimmed().isEmpty()))
            break;
        if (low)
            atLeast(*low);
        if (high)
            atMost(*high);
        break;
    default:
        break;
    }
    return parts.join(QString());
}

bool anyHolds(const CellCondition &condition, const QByteArray &values)
{
    for (qsizetype at = 0; at < values.size();) {
        qsizetype end = values.indexOf('\0', at);
        if (end < 0)
            end = values.size();
        if (condition.holds(QString::fromUtf8(values.constData() + at, end - at)))
            return true;
        at = end + 1;
    }
    return false;
}

/// As SearchText::matchExpression() has it.
bool headHas(const QString &head, const QString &term)
{
    if (SearchText::hasTerm(head, term))
        return true;
    const QStringList parts = term.split(u'/', Qt::SkipEmptyParts);
    return parts.size() > 1 &&
           std::all_of(parts.cbegin(), parts.cend(),
                       [&head](const QString &part) { return SearchText::hasTerm(head, part); });
}

std::vector<qint64> common(const std::vector<qint64> &a, const std::vector<qint64> &b)
{
    std::vector<qint64> both;
    std::set_intersection(a.cbegin(), a.cend(), b.cbegin(), b.cend(), std::back_inserter(both));
    return both;
}

} // namespace

SearchRun::SearchRun(CatalogIndexFile &file, const QString &root, const CatalogSearchQuery &query,
                     const std::atomic<bool> *cancelled)
    : m_file(file)
    , m_root(root)
    , m_query(query)
    , m_cancelled(cancelled)
    , m_terms(SearchText::terms(query.text))
    , m_verifies(query.conditions.size() > 1 || (!m_terms.isEmpty() && !query.conditions.isEmpty()))
    , m_row(file.prepared(QStringLiteral("SELECT path, title, norm, lines, head, table_file"
                                         " FROM projects WHERE id = ?")))
{
    const bool longTerms = std::any_of(m_terms.cbegin(), m_terms.cend(), [](const QString &term) {
        return term.size() > SearchText::MaxToken;
    });
    m_verifies = m_verifies || longTerms || m_terms.size() > SearchText::MaxAsked;
    m_clock.start();
}

bool SearchRun::run(CatalogSearchResult &result)
{
    if (m_terms.isEmpty() && m_query.conditions.isEmpty())
        return true;
    if (!readBelow())
        return false;
    Ids allowed;
    if (!m_query.conditions.isEmpty() && !findByConditions(allowed))
        return false;
    if (m_terms.isEmpty())
        return collect(allowed, result);
    // Without more to ask, the first so many are enough.
    const bool filters = m_verifies || !m_query.conditions.isEmpty() ||
                         (!m_query.below.isEmpty() && !m_belowIsNarrow);
    const qint64 count = filters || m_query.limit <= 0 ? -1 : m_query.limit + 1;
    Ids inHead;
    Ids anywhere;
    if (!findByText(true, count, inHead))
        return false;
    const qint64 rest = count < 0 ? -1 : count + qint64(inHead.size());
    if ((count < 0 || qint64(inHead.size()) < count) && !findByText(false, rest, anywhere))
        return false;
    Ids others;
    std::set_difference(anywhere.cbegin(), anywhere.cend(), inHead.cbegin(), inHead.cend(),
                        std::back_inserter(others));
    if (!m_query.conditions.isEmpty()) {
        inHead = common(inHead, allowed);
        others = common(others, allowed);
    }
    inHead.insert(inHead.end(), others.cbegin(), others.cend());
    return collect(inHead, result);
}

bool SearchRun::readBelow()
{
    QSqlQuery directory = m_file.prepared(QStringLiteral("SELECT id FROM dirs WHERE path = ?"));
    for (QString &path : m_query.below) {
        while (path.endsWith(u'/'))
            path.chop(1);
        directory.bindValue(0, path);
        if (!m_file.run(directory))
            return false;
        if (directory.next())
            m_belowTokens.append(SearchText::directoryToken(directory.value(0).toLongLong()));
        else
            m_belowIsNarrow = false; // a project, or nothing: isBelow() tells
        directory.finish();
    }
    m_belowIsNarrow = m_belowIsNarrow && !m_belowTokens.isEmpty();
    return true;
}

bool SearchRun::isBelow(const QString &path) const
{
    return m_query.below.isEmpty() ||
           std::any_of(m_query.below.cbegin(), m_query.below.cend(), [&path](const QString &below) {
               return below.isEmpty() || path == below || path.startsWith(below + u'/');
           });
}

bool SearchRun::findByConditions(Ids &ids)
{
    // With nothing else to ask, the first so many are enough.
    const bool isAlone =
        m_query.conditions.size() == 1 && m_terms.isEmpty() && m_query.below.isEmpty();
    const qint64 most = isAlone && m_query.limit > 0 ? m_query.limit + 1 : -1;
    bool first = true;
    for (const CatalogSearchCondition &condition : m_query.conditions) {
        Ids found;
        if (!findByCondition(condition, most, found))
            return false;
        ids = first ? found : common(ids, found);
        first = false;
    }
    return true;
}

bool SearchRun::findByCondition(const CatalogSearchCondition &condition, qint64 most, Ids &ids)
{
    QVariantList values{SearchText::folded(condition.variable)};
    QString sql = QStringLiteral("SELECT project, is_range, decimal, vals FROM columns"
                                 " WHERE name = ?") +
                  numberFilter(condition, values);
    if (!condition.unit.isEmpty()) {
        sql += QStringLiteral(" AND unit = ?");
        values.append(condition.unit);
    }
    QSqlQuery query = m_file.prepared(sql + QStringLiteral(" ORDER BY project"));
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values.at(i));
    if (!m_file.run(query))
        return false;
    std::optional<std::pair<CellCondition::Column, CellCondition>> ready;
    while (query.next()) {
        if (!goOn())
            return false;
        const qint64 project = query.value(0).toLongLong();
        if (!ids.empty() && ids.back() == project)
            continue;
        const QString decimal = query.value(2).toString();
        const CellCondition::Column column{decimal.isEmpty() ? '.' : decimal.at(0).toLatin1(),
                                           query.value(1).toInt() != 0};
        if (!ready || ready->first.decimalChar != column.decimalChar ||
            ready->first.isRange != column.isRange)
            ready.emplace(column, CellCondition(condition, column));
        const QVariant kept = query.value(3);
        m_verifies = m_verifies || kept.isNull();
        if (kept.isNull() || anyHolds(ready->second, kept.toByteArray()))
            ids.push_back(project);
        if (qint64(ids.size()) == most && !m_verifies)
            break;
    }
    return true;
}

bool SearchRun::findByText(bool inHead, qint64 count, Ids &ids)
{
    QString match =
        SearchText::matchExpression(m_terms, inHead ? QStringLiteral("head") : QString());
    if (m_belowIsNarrow)
        match = u'(' + match + QStringLiteral(") AND head : (\"") +
                m_belowTokens.join(QStringLiteral("\" OR \"")) + QStringLiteral("\")");
    QSqlQuery query = m_file.prepared(
        QStringLiteral("SELECT rowid FROM words WHERE words MATCH ? ORDER BY rowid LIMIT ?"));
    query.bindValue(0, match);
    query.bindValue(1, count);
    if (!m_file.run(query))
        return false;
    while (query.next()) {
        if (!goOn())
            return false;
        ids.push_back(query.value(0).toLongLong());
    }
    return true;
}

bool SearchRun::collect(const Ids &ids, CatalogSearchResult &result)
{
    for (const qint64 id : ids) {
        if (!goOn())
            return false;
        Row row;
        bool found = false;
        if (!readRow(id, row, found))
            return false;
        if (!found || !isBelow(row.hit.path) || !addLines(row))
            continue;
        if (m_query.limit > 0 && result.hits.size() == m_query.limit) {
            result.hasMore = true;
            return true;
        }
        result.hits.append(row.hit);
    }
    return true;
}

bool SearchRun::readRow(qint64 id, Row &row, bool &found)
{
    m_row.bindValue(0, id);
    if (!m_file.run(m_row))
        return false;
    found = m_row.next();
    if (!found)
        return true;
    row.hit.path = m_row.value(0).toString();
    row.hit.title = m_row.value(1).toString();
    row.hit.normNumber = m_row.value(2).toString();
    row.hit.lineCount = m_row.value(3).toInt();
    row.head = m_row.value(4).toString();
    const QString table = m_row.value(5).toString();
    const bool beside = !table.isEmpty() && !table.contains(u'/') && !table.contains(u'\\');
    row.descriptor = beside ? QDir::toNativeSeparators(
                                  m_root + u'/' + row.hit.path.section(u'/', 0, -2) + u'/' + table)
                            : table;
    m_row.finish();
    return true;
}

bool SearchRun::addLines(Row &row) const
{
    const auto inTime = [this] {
        return m_query.lineMilliseconds <= 0 || m_clock.elapsed() < m_query.lineMilliseconds;
    };
    if (!m_verifies && (m_query.linesPerHit < 0 || !inTime()))
        return true;
    // Words of the head do not have to stand in the line as well; if all do, the lines that have
    // them are told.
    QStringList wanted;
    for (const QString &term : m_terms) {
        if (!headHas(row.head, term))
            wanted.append(term);
    }
    const bool allInHead = wanted.isEmpty();
    if (allInHead && m_query.conditions.isEmpty()) {
        if (m_query.linesPerHit < 0)
            return true;
        wanted = m_terms;
    }
    const LineMatcher matcher(wanted, m_query.conditions);
    const LineMatcher::Matches lines = matcher.find(
        row.descriptor, QDir::toNativeSeparators(m_root + u'/' + row.hit.path),
        std::max(m_query.linesPerHit, 0), [&] { return goOn() && (m_verifies || inTime()); });
    if (m_query.linesPerHit >= 0) {
        row.hit.matchingLines = lines.count;
        row.hit.lines = lines.lines;
    }
    return !m_verifies || lines.count > 0 || (allInHead && m_query.conditions.isEmpty());
}
