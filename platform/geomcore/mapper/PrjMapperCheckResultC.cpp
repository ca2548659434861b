#include "PrjMapperCheckResultC.h"

PrjMapperCheckResultC::PrjMapperCheckResultC(bool ok, const QString &, const QString &,
                                             const QStringList &messages,
                                             const Varset &sourceVarset, const Varset &targetVarset)
    : m_ok(ok)
    , m_messages(messages)
    , m_sourceVarset(sourceVarset)
    , m_targetVarset(targetVarset)
{
}
