#include "ChangeFamilies.h"

#include "CellParts.h"

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

/// So many lines make a family.
constexpr int FamilyLines = 2;
/// A number map makes a family if it explains this share of what became of the variable's numbers;
/// figures that were all measured anew have some differences in common by chance.
constexpr double MapShare = 0.5;
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

} // namespace

/// A place where a value differs, with the families that it may be of, the more special ones first.
struct ChangeFamilies::Part
{
    QString before;
    QString after;
    QList<ValueChange> options;
};

ChangeFamilies::ChangeFamilies(const QList<AgreedReplacement> &agreed)
    : m_agreed(agreed)
{
}

std::vector<ChangeFamilies::Part> ChangeFamilies::partsOf(const OpenPair::Value &value)
{
    std::vector<Part> parts;
    for (const CellPart &cell : differingParts(value.before, value.after)) {
        Part part{cell.before, cell.after, {}};
        if (std::max(cell.before.size(), cell.after.size()) <= MaxReplaced) {
            ValueChange change = plainChange(value.variable, ValueChange::Replacement);
            change.before = cell.before;
            change.after = cell.after;
            part.options.append(change);
        }
        const auto before = numberOf(cell.before);
        const auto after = numberOf(cell.after);
        if (before && after) {
            ValueChange change = plainChange(value.variable, ValueChange::NumberMap);
            if (const auto factor = factorOf(*before, *after); factor && *factor != 1) {
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
    for (const OpenPair &pair : pairs) {
        QStringList names; // a line counts once, however often it has a change
        QStringList numbers;
        for (const OpenPair::Value &value : pair.values) {
            if (value.before.isEmpty() || value.after.isEmpty())
                continue;
            for (const Part &part : partsOf(value)) {
                for (const ValueChange &option : part.options) {
                    names.append(nameOf(option));
                    if (option.kind == ValueChange::NumberMap)
                        numbers.append(value.variable);
                }
            }
        }
        names.removeDuplicates();
        for (const QString &name : std::as_const(names))
            ++m_supports[name];
        numbers.removeDuplicates();
        for (const QString &name : std::as_const(numbers))
            ++m_numbers[name];
    }
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
        const auto after = numberOf(part.after);
        if (!before || !after)
            return false;
        const double mapped = *before * agreed.factor.toDouble() + agreed.offset.toDouble();
        return std::abs(mapped - *after) <= 1e-9 * std::max(std::abs(mapped), std::abs(*after));
    };
    const auto found = std::find_if(m_agreed.cbegin(), m_agreed.cend(), isMeant);
    return found == m_agreed.cend() ? nullptr : &*found;
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
        const ValueChange *best = nullptr;
        int supports = FamilyLines - 1;
        for (const ValueChange &option : part.options) {
            const int count = m_supports.value(nameOf(option));
            if (option.kind == ValueChange::NumberMap &&
                count < MapShare * m_numbers.value(value.variable))
                continue;
            if (count > supports) {
                supports = count;
                best = &option;
            }
        }
        if (!best) {
            found.clear();
            break;
        }
        found.append(*best);
    }
    if (found.isEmpty()) {
        const auto before = numberOf(value.before);
        const auto after = numberOf(value.after);
        const ValueChange::Kind kind = !before || !after         ? ValueChange::Wording
                                       : isNear(*before, *after) ? ValueChange::NearNumber
                                                                 : ValueChange::OtherNumber;
        found.append(plainChange(value.variable, kind));
    }
    changes.append(found);
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
