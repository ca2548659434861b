#pragma once

#include "SampleSet.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <array>

/// Proposals by their probability, in ten classes, with what became of them.
struct Calibration
{
    struct Class
    {
        int count = 0;
        double said = 0;
        int right = 0;
    };
    std::array<Class, 10> classes;

    void add(double probability, bool right);
    void add(const Calibration &other);
    /// Mean distance between what was said and the share of right ones, over all proposals.
    [[nodiscard]] double error() const;
};

/// How an assigned release, its candidates and the reference compare with the truth.
struct RuleScore
{
    int known = 0;
    int mappedWrong = 0;
    int best = 0;          ///< Known lines whose best candidate is right,
    int proposed = 0;      ///< that are assigned or proposed rightly,
    int five = 0;          ///< that have the right line among their candidates.
    int proposedWrong = 0; ///< Known lines with another proposal.
    int gone = 0;
    int goneProposed = 0;
    int open = 0; ///< Lines that are not Mapped: decisions one by one.
    /// With one decision for each pattern, or project of it, that is right, and one for the lines
    /// of a project that are gone.
    int decisions = 0;
    int referenceBest = 0;
    int referenceGone = 0; ///< Gone lines for which the reference has a line.
    Calibration calibration;
    QStringList decided; ///< What was decided, and for how many lines.
    QStringList misses;  ///< Known lines without the right proposal, gone lines with one.
    QString error;

    /// \a sourceRoot and \a targetRoot hold the imported catalogs of \a set.
    [[nodiscard]] static RuleScore of(const SampleSet &set, const ReleaseMappingC &release,
                                      const QString &sourceRoot, const QString &targetRoot);
};
