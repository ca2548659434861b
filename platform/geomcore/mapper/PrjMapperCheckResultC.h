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

    /// \a source and \a target are the norm designations of the two lines, empty if unknown.
    PrjMapperCheckResultC(bool ok, const QString &source, const QString &target,
                          const QStringList &messages, const Varset &sourceVarset,
                          const Varset &targetVarset);

    [[nodiscard]] bool isOK() const { return m_ok; }
    /// One message per difference. Its first row says what differs; details follow on rows of their
    /// own that begin with blanks.
    [[nodiscard]] const QStringList &getErrMsgList() const { return m_messages; }
    /// Values of the source line with which the check failed; empty if it did not.
    [[nodiscard]] const Varset &getSourceVarset() const { return m_sourceVarset; }
    /// The same values as the target sees them.
    [[nodiscard]] const Varset &getTargetVarset() const { return m_targetVarset; }
    [[nodiscard]] const QString &getSourceText() const { return m_sourceText; }
    [[nodiscard]] const QString &getTargetText() const { return m_targetText; }

private:
    bool m_ok;
    QString m_sourceText;
    QString m_targetText;
    QStringList m_messages;
    Varset m_sourceVarset;
    Varset m_targetVarset;
};
