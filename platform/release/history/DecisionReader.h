#pragma once

#include "DecisionHistory.h"
#include "HistorySessions.h"

#include <core/json/PJsonValue.h>

#include <map>
#include <optional>
#include <tuple>

namespace VelkRelease {

/// Makes decisions of the records of one session.
class DecisionReader
{
public:
    /// In the order of the journal; reasons stand behind the decisions that they are for.
    [[nodiscard]] static QList<DecisionHistory::Decision>
    read(const HistorySessions::Session &session);

private:
    using Entry = DecisionHistory::Entry;
    using Decision = DecisionHistory::Decision;
    struct LineKey
    {
        QString path;
        QString version;
        int line;

        friend bool operator<(const LineKey &a, const LineKey &b)
        {
            return std::tie(a.path, a.version, a.line) < std::tie(b.path, b.version, b.line);
        }
    };
    /// Of one target: what was there before the step, what is behind it.
    struct Change
    {
        std::optional<Entry> before;
        std::optional<Entry> after;
    };
    using LineChanges = std::map<LineKey, std::map<QString, Change>>;

    void take(const PJsonValue &record);
    void takeChange(const PJsonValue &record);
    void takeLine(const PJsonValue &line, const LineKey &project, const QString &before,
                  const QString &after);
    void takeStep(const PJsonValue &record);
    void takeCarried(Decision decision, const PJsonValue &note);
    void takeReason(const PJsonValue &record);
    void takeEnd(bool modified);
    void note(const LineKey &key, const QString &target, const std::optional<Entry> &before,
              const std::optional<Entry> &after);

    Decision m_head; ///< what all of the session have in common
    LineChanges m_open;
    qint64 m_openStep = -1;
    PJsonValue m_carried; ///< note for the step in the making
    QList<Decision> m_decisions;
};

} // namespace VelkRelease
