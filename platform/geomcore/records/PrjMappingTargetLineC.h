#pragma once

#include "PRJMAPPING.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QPair>
#include <QSharedData>
#include <QString>

/// The extended text of a line, shared between all copies of its entry. Immutable once shared.
class ExtendedText : public QSharedData
{
public:
    explicit ExtendedText(const QString &value)
        : text(value)
    {
    }
    QString text;
};
/// Null stands for the empty text, which nearly every line has.
using ExtendedTextPtr = QExplicitlySharedDataPointer<ExtendedText>;

/// What became of one source line in one target.
class VELKGEOMCORE_EXPORT PrjMappingTargetLineC
{
public:
    /// The same as (-1, ToCheck, ""): what a look-up of an unknown line gives.
    PrjMappingTargetLineC() = default;
    /// \a extended has a row per value combination, `{NAME=VALUE}{NAME=VALUE} -> 17`; rows that are
    /// written otherwise are kept and mean nothing.
    PrjMappingTargetLineC(int targetLineId, PRJMAPPING::CheckState state, const QString &extended);
    PrjMappingTargetLineC(int targetLineId, PRJMAPPING::CheckState state, bool conflict,
                          const ExtendedTextPtr &extended);

    /// -1: no target line.
    [[nodiscard]] int getTargetLineId() const { return m_targetLine; }
    [[nodiscard]] PRJMAPPING::CheckState getState() const { return m_state; }
    [[nodiscard]] QString getExtended() const { return m_extended ? m_extended->text : QString(); }
    [[nodiscard]] bool getConflict() const { return m_conflict; }
    [[nodiscard]] const ExtendedTextPtr &extendedText() const { return m_extended; }

    /// Adds a row to the extended text. \a values is what MidentClass::MakeVarvalueString() gives.
    void addVarset(const QString &values, int targetLineId);
    /// Empties the extended text.
    void clearVarsetList();
    /// The resolved combinations, read from the rows of the extended text: values and target line.
    [[nodiscard]] QList<QPair<QString, int>> getVarsetList() const;

    friend VELKGEOMCORE_EXPORT bool operator==(const PrjMappingTargetLineC &a,
                                               const PrjMappingTargetLineC &b);

private:
    int m_targetLine = -1;
    PRJMAPPING::CheckState m_state = PRJMAPPING::ToCheck;
    bool m_conflict = false;
    ExtendedTextPtr m_extended;
};
