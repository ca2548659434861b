#include "LineFilter.h"

#include <core/json/PJsonValue.h>

#include <algorithm>

namespace VelkRelease {

namespace {

constexpr std::array traitNames{"state", "reason", "difference", "column", "author", "origin"};
static_assert(traitNames.size() == LineTraitCount);

} // namespace

LineState lineState(int targetLine, PRJMAPPING::CheckState state, bool conflict)
{
    if (conflict)
        return LineState::Conflict;
    if (state == PRJMAPPING::Verified)
        return targetLine == -1 ? LineState::Expired : LineState::Confirmed;
    if (targetLine == -1)
        return LineState::NotFound;
    return state == PRJMAPPING::Mapped ? LineState::Proposed : LineState::ToCheck;
}

bool isOpen(LineState state)
{
    return state <= LineState::NotFound;
}

QString lineStateKey(LineState state)
{
    static const std::array<QString, LineStateCount> keys{
        QStringLiteral("conflict"), QStringLiteral("toCheck"),   QStringLiteral("notFound"),
        QStringLiteral("proposed"), QStringLiteral("confirmed"), QStringLiteral("expired")};
    return keys[std::size_t(state)];
}

bool LineFilter::Choice::accepts(const QStringList &ofLine) const
{
    if (values.isEmpty())
        return true;
    const bool has = ofLine.isEmpty() ? values.contains(QString())
                                      : std::ranges::any_of(ofLine, [this](const QString &value) {
                                            return values.contains(value);
                                        });
    return has != isNot;
}

bool LineFilter::isEmpty() const
{
    return std::ranges::all_of(choices,
                               [](const Choice &choice) { return choice.values.isEmpty(); });
}

QByteArray LineFilter::toText() const
{
    PJsonValue json(PJsonValue::Object);
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].values.isEmpty())
            continue;
        PJsonValue choice(PJsonValue::Object);
        PJsonValue values(PJsonValue::Array);
        for (const QString &value : choices[i].values)
            values.append(PJsonValue(value));
        choice[QStringLiteral("values")] = values;
        choice[QStringLiteral("not")] = PJsonValue::fromBool(choices[i].isNot);
        json[QString::fromLatin1(traitNames[i])] = choice;
    }
    return json.toByteArray(true);
}

LineFilter LineFilter::fromText(const QByteArray &text)
{
    LineFilter filter;
    PJsonValue json;
    if (text.isEmpty() || !json.parse(text))
        return filter;
    for (std::size_t i = 0; i < filter.choices.size(); ++i) {
        const PJsonValue choice = json.value(QString::fromLatin1(traitNames[i]));
        const PJsonValue values = choice.value(QStringLiteral("values"));
        for (int value = 0; value < values.size(); ++value)
            filter.choices[i].values += values.at(value).toText();
        filter.choices[i].isNot = choice.value(QStringLiteral("not")).toBool();
    }
    return filter;
}

} // namespace VelkRelease
