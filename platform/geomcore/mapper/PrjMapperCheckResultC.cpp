#include "PrjMapperCheckResultC.h"

PrjMapperCheckResultC::PrjMapperCheckResultC(bool ok, const QString &source, const QString &target,
                                             const QStringList &messages,
                                             const Varset &sourceVarset, const Varset &targetVarset)
    : m_ok(ok)
    , m_sourceText(source)
    , m_targetText(target)
    , m_messages(messages)
    , m_sourceVarset(sourceVarset)
    , m_targetVarset(targetVarset)
{
}
