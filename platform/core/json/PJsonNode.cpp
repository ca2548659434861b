#include "PJsonNode.h"

#include "JsonText.h"
#include "JsonWriter.h"

#include <algorithm>

namespace {

constexpr int IndexedSize = 16;

PJsonValue::Type typeOf(QByteArrayView text)
{
    switch (text.front()) {
    case 'n':
        return PJsonValue::Null;
    case 't':
    case 'f':
        return PJsonValue::Bool;
    case '"':
        return PJsonValue::Text;
    case '[':
        return PJsonValue::Array;
    case '{':
        return PJsonValue::Object;
    default:
        return PJsonValue::Number;
    }
}

} // namespace

int PJsonMembers::find(const QString &key) const
{
    if (!m_index.isEmpty())
        return m_index.value(key, -1);
    const auto at = std::find(names.begin(), names.end(), key);
    return at == names.end() ? -1 : int(at - names.begin());
}

PJsonValue &PJsonMembers::set(const QString &key, const PJsonValue &value)
{
    const int at = find(key);
    if (at >= 0)
        return values[std::size_t(at)] = value;
    names.push_back(key);
    values.push_back(value);
    if (!m_index.isEmpty()) {
        m_index.insert(key, int(names.size()) - 1);
    } else if (names.size() > IndexedSize) {
        for (std::size_t i = 0; i < names.size(); ++i)
            m_index.insert(names[i], int(i));
    }
    return values.back();
}

void PJsonMembers::removeAt(int index)
{
    names.erase(names.begin() + index);
    values.erase(values.begin() + index);
    m_index.clear();
    for (std::size_t i = 0; names.size() > IndexedSize && i < names.size(); ++i)
        m_index.insert(names[i], int(i));
}

PJsonNode::PJsonNode(PJsonValue::Type type)
    : m_type(type)
    , m_members(new PJsonMembers)
{
}

PJsonNode::PJsonNode(const QByteArray &owner, QByteArrayView text, int writtenLevel)
    : m_type(typeOf(text))
    , m_writtenLevel(writtenLevel)
    , m_owner(owner)
    , m_text(text)
{
}

PJsonNode::PJsonNode(PJsonValue::Type type, const std::function<void(JsonWriter &)> &write)
    : m_type(type)
    , m_writer(write)
{
}

PJsonNode::PJsonNode(const PJsonNode &other)
    : QSharedData(other)
    , m_type(other.m_type)
    , m_writtenLevel(other.m_writtenLevel)
    , m_owner(other.m_owner)
    , m_text(other.m_text)
    , m_writer(other.m_writer)
{
    if (const PJsonMembers *members = other.m_members.load(std::memory_order_acquire))
        m_members.store(new PJsonMembers(*members), std::memory_order_relaxed);
}

PJsonNode::~PJsonNode()
{
    delete m_members.load(std::memory_order_acquire);
}

const PJsonMembers &PJsonNode::members() const
{
    if (const PJsonMembers *known = m_members.load(std::memory_order_acquire))
        return *known;
    std::unique_ptr<PJsonMembers> found;
    if (m_writer) {
        JsonWriter writer(JsonWriter::Indented);
        m_writer(writer);
        const QByteArray text = writer.take();
        found = split(text, text, 0);
    } else {
        found = split(m_owner, m_text, m_writtenLevel);
    }
    PJsonMembers *expected = nullptr;
    if (m_members.compare_exchange_strong(expected, found.get(), std::memory_order_acq_rel))
        return *found.release();
    return *expected;
}

PJsonMembers &PJsonNode::changeMembers()
{
    auto &own = const_cast<PJsonMembers &>(members());
    m_text = QByteArrayView();
    m_owner.clear();
    m_writer = nullptr;
    m_writtenLevel = -1;
    return own;
}

std::unique_ptr<PJsonMembers> PJsonNode::split(const QByteArray &owner, QByteArrayView text,
                                               int level) const
{
    auto result = std::make_unique<PJsonMembers>();
    if (m_type != PJsonValue::Object && m_type != PJsonValue::Array)
        return result;
    const int inside = level < 0 ? -1 : level + 1;
    JsonText::Walker walker(text);
    while (walker.next()) {
        const PJsonValue value(new PJsonNode(owner, walker.value(), inside));
        if (m_type == PJsonValue::Object)
            result->set(JsonText::unquoted(walker.quotedName()), value);
        else
            result->values.push_back(value);
    }
    return result;
}
