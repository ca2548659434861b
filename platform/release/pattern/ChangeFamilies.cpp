#include "ChangeFamilies.h"

#include "CellParts.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

/// So many lines make a family.
constexpr int FamilyLines = 2;
/// A number map makes a family if it explains this share of what became of the variable's numbers;
/// figures that were all measured anew have some differences in common by chance.
constexpr double MapShare = 0.5;
/// A number that was replaced makes a family if this share of the lines with it got the same one.
constexpr double SameShare = 0.5;
/// Longer texts are not named as replacements.
constexpr qsizetype MaxReplaced = 200;
/// Numbers that differ by less than this part of the larger one are near each other.
constexpr double NearRange = 0.25;

QString nameOf(const ValueChange &change)
{
    constexpr QChar Between(0x1f);
    const QString head = change.variable + Between + QString::number(int(change.kind)) + Between;
    if (change.kind == ValueChange::NumberMap)
        return head + QString::number(change.factor, 'g', 6) + Between +
               QString::number(change.offset, 'g', 6);
    return head + change.before + Between + change.after;
}

/// Of an old number of a variable.
QString originOf(const QString &variable, const QString &before)
{
    return variable + QChar(0x1f) + before;
}

/// The texts differ in blanks and capitals alone.
bool isNotation(const QString &before, const QString &after)
{
    const auto plain = [](QString text) {
        text.removeIf([](QChar c) { return c.isSpace(); });
        return text.toCaseFolded();
    };
    return plain(before) == plain(after);
}

ValueChange plainChange(const QString &variable, ValueChange::Kind kind)
{
    ValueChange change;
    change.variable = variable;
    change.kind = kind;
    return change;
}

bool isNear(double a, double b)
{
    return std::abs(a - b) <= NearRange * std::max(std::abs(a), std::abs(b));
}

/// Without regard to families.
ValueChange::Kind kindOf(const OpenPair::Value &value)
{
    const auto before = numberOf(value.before);
    const auto after = numberOf(value.after);
    if (!before || !after)
        return ValueChange::Wording;
    return isNear(*before, *after) ? ValueChange::NearNumber : ValueChange::OtherNumber;
}

} // namespace

/// A place where a value differs, with the families that it may be of, the more special ones first.
struct ChangeFamilies::Part
{
    QString before;
    QString after;
    QList<ValueChange> options;
    bool isNumber = false; ///< that another number took the place of
};

ChangeFamilies::ChangeFamilies(const QList<AgreedReplacement> &agreed)
    : m_agreed(agreed)
{
}

std::vector<ChangeFamilies::Part> ChangeFamilies::partsOf(const OpenPair::Value &value)
{
    std::vector<Part> parts;
    for (const CellPart &cell : differingParts(value.before, value.after)) {
        Part part{cell.before, cell.after, {}, false};
        if (std::max(cell.before.size(), cell.after.size()) <= MaxReplaced) {
            ValueChange change = plainChange(value.variable, ValueChange::Replacement);
            change.before = cell.before;
            change.after = cell.after;
            part.options.append(change);
        }
        const auto before = numberOf(cell.before);
        const auto after = numberOf(cell.after);
        part.isNumber = before && after;
        if (part.isNumber) {
            ValueChange change = plainChange(value.variable, ValueChange::NumberMap);
            // A unit's factor first: that of one pair of rounded numbers is not that of the next.
            auto factor = unitFactorOf(*before, *after, cell.after);
            if (!factor)
                factor = factorOf(*before, *after);
            if (factor && *factor != 1) {
                change.factor = *factor;
                part.options.append(change);
                change.factor = 1;
            }
            if (const auto offset = offsetOf(*before, *after); offset && *offset != 0) {
                change.offset = *offset;
                part.options.append(change);
            }
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

void ChangeFamilies::count(const std::vector<OpenPair> &pairs)
{
    for (const OpenPair &pair : pairs)
        countPair(pair);
}

/// A line counts once, however often it has a change.
void ChangeFamilies::countPair(const OpenPair &pair)
{
    QHash<QString, ValueChange> options; // by name
    QSet<QString> numbers;
    QSet<QString> origins;
    for (const OpenPair::Value &value : pair.values) {
        if (value.before.isEmpty() || value.after.isEmpty())
            continue;
        for (const Part &part : partsOf(value)) {
            for (const ValueChange &option : part.options) {
                options.insert(nameOf(option), option);
                if (option.kind == ValueChange::NumberMap)
                    numbers.insert(value.variable);
            }
            if (part.isNumber)
                origins.insert(originOf(value.variable, part.before));
        }
    }
    for (auto option = options.cbegin(); option != options.cend(); ++option) {
        const int supports = ++m_supports[option.key()];
        if (option->kind != ValueChange::NumberMap)
            continue;
        // Of equally supported ones the first in the order of their names, whatever that of a hash.
        BestMap &best = m_maps[option->variable];
        if (supports > best.supports ||
            (supports == best.supports && option.key() < nameOf(best.change)))
            best = {*option, supports};
    }
    for (const QString &name : std::as_const(numbers))
        ++m_numbers[name];
    for (const QString &name : std::as_const(origins))
        ++m_origins[name];
}

int ChangeFamilies::supportsOf(const ValueChange &change) const
{
    return m_supports.value(nameOf(change));
}

const AgreedReplacement *ChangeFamilies::agreedTo(const OpenPair::Value &value, const Part &part,
                                                  const QString &sourcePath) const
{
    const auto isMeant = [&](const AgreedReplacement &agreed) {
        if (agreed.variable != value.variable || !agreed.holdsIn(sourcePath))
            return false;
        if (!agreed.isNumeric())
            return (agreed.before == part.before && agreed.after == part.after) ||
                   (agreed.before == value.before && agreed.after == value.after);
        const auto before = numberOf(part.before);
        return before &&
               isMapped(*before, agreed.factor.toDouble(), agreed.offset.toDouble(), part.after);
    };
    const auto found = std::find_if(m_agreed.cbegin(), m_agreed.cend(), isMeant);
    return found == m_agreed.cend() ? nullptr : &*found;
}

/// The family of a part that most lines support, if it has one.
std::optional<ValueChange> ChangeFamilies::familyOf(const Part &part, const QString &variable) const
{
    std::optional<ValueChange> found;
    int most = FamilyLines - 1;
    const auto offer = [&](const ValueChange &change) {
        const int supports = supportsOf(change);
        const double least =
            change.kind == ValueChange::NumberMap ? MapShare * m_numbers.value(variable)
            : part.isNumber ? SameShare * m_origins.value(originOf(variable, part.before))
                            : 0;
        if (supports > most && supports >= least) {
            most = supports;
            found = change;
        }
    };
    for (const ValueChange &option : part.options)
        offer(option);
    const auto map = m_maps.constFind(variable);
    if (part.isNumber && map != m_maps.cend() &&
        isMapped(*numberOf(part.before), map->change.factor, map->change.offset, part.after))
        offer(map->change);
    return found;
}

void ChangeFamilies::addChanges(const OpenPair::Value &value, const QString &sourcePath,
                                QList<ValueChange> &changes) const
{
    if (value.before.isEmpty() || value.after.isEmpty()) {
        changes.append(plainChange(value.variable, value.before.isEmpty() ? ValueChange::Added
                                                                          : ValueChange::Missing));
        return;
    }
    QList<ValueChange> found;
    for (const Part &part : partsOf(value)) {
        if (const AgreedReplacement *agreed = agreedTo(value, part, sourcePath)) {
            ValueChange change =
                plainChange(value.variable, agreed->isNumeric() ? ValueChange::NumberMap
                                                                : ValueChange::Replacement);
            change.before = agreed->before;
            change.after = agreed->after;
            if (agreed->isNumeric()) {
                change.factor = agreed->factor.toDouble();
                change.offset = agreed->offset.toDouble();
            }
            change.agreed = true;
            found.append(change);
            continue;
        }
        if (isNotation(part.before, part.after)) {
            found.append(plainChange(value.variable, ValueChange::Notation));
            continue;
        }
        const std::optional<ValueChange> family = familyOf(part, value.variable);
        if (!family) {
            found.clear();
            break;
        }
        found.append(*family);
    }
    if (found.isEmpty())
        found.append(plainChange(value.variable, kindOf(value)));
    changes.append(found);
}

ValueChange ChangeFamilies::plain(const ValueChange &change, const OpenPair &pair)
{
    if (change.kind != ValueChange::Replacement && change.kind != ValueChange::NumberMap)
        return change;
    const auto value = std::ranges::find(pair.values, change.variable, &OpenPair::Value::variable);
    return value == pair.values.end() ? change : plainChange(change.variable, kindOf(*value));
}

QList<ValueChange> ChangeFamilies::changesOf(const OpenPair &pair, const QString &sourcePath) const
{
    QList<ValueChange> changes;
    for (const OpenPair::Value &value : pair.values)
        addChanges(value, sourcePath, changes);
    QList<ValueChange> unique;
    for (const ValueChange &change : std::as_const(changes)) {
        if (!unique.contains(change))
            unique.append(change);
    }
    return unique;
}

} // namespace VelkRelease
