#pragma once

#include "ReleaseLayout.h"
#include "ReleaseMappingC.h"

#include <QStringList>

#include <array>
#include <limits>
#include <string>
#include <string_view>

/// Builds a release from the events of a JSON reader, in the layout of the mapping file. Each event
/// gives false at the first thing that is not as it should be; error() then says what and where.
/// Members of unknown names are passed over; of members of one name the last counts.
class ReleaseBuilder
{
public:
    /// Values nested deeper than this are refused, since reading them recurses.
    static constexpr int MaxDepth = 512;

    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }
    /// Nothing is being read: either no event came yet, or the release's closing brace did.
    [[nodiscard]] bool isIdle() const { return m_place == ReleaseLayout::Outside; }
    /// The member and what is wrong with it.
    [[nodiscard]] QString error() const;
    /// What was put right.
    [[nodiscard]] const QStringList &notes() const { return m_notes; }

    bool startObject();
    bool endObject();
    bool startArray();
    bool endArray();
    bool key(std::string_view name);
    bool integer(qint64 number)
    {
        if (m_place == ReleaseLayout::Row && m_column < 3 &&
            number >= std::numeric_limits<int>::min() &&
            number <= std::numeric_limits<int>::max()) {
            m_row[m_column++] = int(number);
            return true;
        }
        return otherInteger(number);
    }
    bool boolean(bool flag);
    bool text(std::string_view utf8);
    /// A null, a fraction, or a number that is too large.
    bool anythingElse();
    /// Whether rows of lines may come.
    [[nodiscard]] bool isAmongLines() const
    {
        return m_place == ReleaseLayout::Lines && m_passedOver == 0;
    }
    /// A whole row of three numbers; only where isAmongLines().
    bool row(int sourceLine, int targetLine, int state);
    /// So many rows that stand behind all that were read, as they are in another release; \a from
    /// goes behind them. Only where isAmongLines() and linesAscend().
    void rows(LineTable::Iterator &from, int count);
    /// Whether the rows of the target stood there in ascending order up to now.
    [[nodiscard]] bool linesAscend() const { return m_ascending; }
    [[nodiscard]] int lastLine() const { return m_lastLine; }
    [[nodiscard]] const LineTable &lines() const { return m_target.lines(); }
    /// Tells the target that is being read from others, as far as it has been read.
    [[nodiscard]] QString targetName() const;

private:
    using Place = ReleaseLayout::Place;
    using Kind = ReleaseLayout::Kind;
    struct LastText
    {
        std::string utf8;
        QString text;
    };

    bool fail(const QString &message);
    bool passOver();
    bool startPassingOver();
    bool expect(Kind kind);
    bool otherInteger(qint64 number);
    void begin(Place place);
    void enterArray();
    void setText(const QString &text);
    bool checkComplete(Place place);
    bool endMapping();
    void moveNotFoundTarget();
    bool endModifier();
    bool endReplacement();
    bool endLearned();
    bool endRow();
    bool addRow(const ExtendedTextPtr &extended, bool conflict);

    ReleaseMappingC m_release;
    PrjMappingC m_mapping;
    PRJMAPPING::MappingState m_state;
    QList<PrjMappingTargetC> m_targets;
    PrjMappingTargetC m_target;
    bool m_proposedRules = false;
    QList<AgreedReplacement> m_replacements;
    AgreedReplacement m_replacement;
    QList<LearnedReplacement> m_allLearned;
    LearnedReplacement m_learned;
    QString m_modifierKind;
    QString m_modifierSource;
    QString m_modifierTarget;
    QString m_modifierFormula;

    Place m_place = ReleaseLayout::Outside;
    int m_key = -1;          ///< whose value comes next
    quint64 m_seen = 0;      ///< a bit for each of Members
    int m_passedOver = 0;    ///< depth inside a value that is passed over, from 1
    bool m_passNext = false; ///< the next value is passed over

    int m_element = -1; ///< index of the condition, modifier or row
    int m_lastLine = 0;
    bool m_ascending = true; ///< the lines of this target
    std::array<int, 3> m_row{};
    unsigned m_column = 0;
    QString m_extended;
    bool m_conflict = false;

    std::array<LastText, ReleaseLayout::MemberCount> m_last; ///< of each of Members
    QString m_message;
    QStringList m_notes;
};
