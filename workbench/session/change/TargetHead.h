#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class PJsonValue;
class PrjMappingTargetC;

/// All of a target but its lines.
struct TargetHead
{
    QString path;
    QString version;
    QString tabVersion;
    bool valid = false;
    bool proposed = false; ///< the rules, by the program
    QStringList conditions;
    QList<QByteArray> modifiers; ///< each as in the mapping file, compact

    [[nodiscard]] static TargetHead of(const PrjMappingTargetC &target);
    /// The same as comparing both heads, and much quicker for targets that share their content.
    [[nodiscard]] static bool equal(const PrjMappingTargetC &a, const PrjMappingTargetC &b);
    /// Gives a target this head and keeps its lines.
    void applyTo(PrjMappingTargetC &target) const;

    /// Target variables that are ignored, in stored order.
    [[nodiscard]] QStringList ignored() const;

    [[nodiscard]] PJsonValue toJson() const;
    [[nodiscard]] static TargetHead fromJson(const PJsonValue &json);

    friend bool operator==(const TargetHead &, const TargetHead &) = default;
};
