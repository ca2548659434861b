#pragma once

#include "PJsonValue.h"

#include <QByteArrayView>
#include <QHash>
#include <QSharedData>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

/// Members of an object or elements of an array.
class PJsonMembers
{
public:
    [[nodiscard]] int find(const QString &key) const;
    /// Replaces the value of a name that is there already, in its place.
    PJsonValue &set(const QString &key, const PJsonValue &value);
    void removeAt(int index);

    std::vector<QString> names; ///< empty for an array
    std::vector<PJsonValue> values;

private:
    QHash<QString, int> m_index; ///< only from a certain number of members on
};

/// What a PJsonValue shares: its text or what writes it, its members, or both. The members of an
/// unchanged text are found when first asked for, on whatever thread, and then kept beside it.
class PJsonNode : public QSharedData
{
public:
    /// An empty object or array.
    explicit PJsonNode(PJsonValue::Type type);
    /// Part of a text that has been checked, or that JsonWriter wrote at \a writtenLevel.
    PJsonNode(const QByteArray &owner, QByteArrayView text, int writtenLevel);
    /// An object or array that is written when it is wanted.
    PJsonNode(PJsonValue::Type type, const std::function<void(JsonWriter &)> &write);
    PJsonNode(const PJsonNode &other);
    PJsonNode &operator=(const PJsonNode &) = delete;
    ~PJsonNode();

    [[nodiscard]] PJsonValue::Type type() const { return m_type; }
    [[nodiscard]] bool hasText() const { return !m_text.isEmpty(); }
    [[nodiscard]] QByteArrayView text() const { return m_text; }
    /// Depth for which JsonWriter indented the text; -1 for a text of unknown layout.
    [[nodiscard]] int writtenLevel() const { return m_writtenLevel; }
    /// Null unless the value is written when it is wanted; it then has no text.
    [[nodiscard]] const std::function<void(JsonWriter &)> &writer() const { return m_writer; }
    [[nodiscard]] const PJsonMembers &members() const;
    /// The members to be changed: the text is dropped.
    PJsonMembers &changeMembers();

private:
    [[nodiscard]] std::unique_ptr<PJsonMembers> split(const QByteArray &owner, QByteArrayView text,
                                                      int level) const;

    PJsonValue::Type m_type;
    int m_writtenLevel = -1;
    QByteArray m_owner; ///< keeps m_text alive
    QByteArrayView m_text;
    std::function<void(JsonWriter &)> m_writer;
    mutable std::atomic<PJsonMembers *> m_members{nullptr};
};
