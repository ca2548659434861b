#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QStringList>

/// Outcome of a check of one assignment.
class VELKGEOMCORE_EXPORT PrjMapperCheckResultC
{
public:
    using Varset = QHash<QString, MapVarValueC>;

    /// The two texts, norm designations of the lines, are not kept: nobody asks for them.
    PrjMapperCheckResultC(bool ok, const QString &, const QString &, const QStringList &messages,
                          const Varset &sourceVarset, const Varset &targetVarset);

    [[nodiscard]] bool isOK() const { return m_ok; }
    /// One message per difference. Its first row says what differs; details follow on rows of their
    /// own that begin with blanks.
    [[nodiscard]] const QStringList &getErrMsgList() const { return m_messages; }
    /// Values of the source line with which the check failed; empty if it did not.
    [[nodiscard]] const Varset &getSourceVarset() const { return m_sourceVarset; }
    /// The same values as the target sees them.
    [[nodiscard]] const Varset &getTargetVarset() const { return m_targetVarset; }

private:
    bool m_ok;
    QStringList m_messages;
    Varset m_sourceVarset;
    Varset m_targetVarset;
};
