#include "prxProjectMappingC.h"

#include "readScriptTable.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/proxyMember.h>

#include <algorithm>

prxProjectMappingC::prxProjectMappingC(const PrjMappingC &mapping, const ScriptRoots &roots)
    : m_mapping(mapping)
    , m_rows(mappingRows(mapping))
    , m_roots(roots)
{
}

prxProjectMappingC::~prxProjectMappingC() = default;

bool prxProjectMappingC::hasTableError() const
{
    return m_mapping.getMappingState().testFlag(PRJMAPPING::StateTableError);
}

int prxProjectMappingC::lines() const
{
    return m_mapping.lineCounts().lines();
}

int prxProjectMappingC::notFound() const
{
    return m_mapping.lineCounts().notFound();
}

int prxProjectMappingC::mapped() const
{
    return m_mapping.lineCounts().mapped();
}

int prxProjectMappingC::toCheck() const
{
    return m_mapping.lineCounts().toCheck();
}

int prxProjectMappingC::verified() const
{
    return m_mapping.lineCounts().verified();
}

QString prxProjectMappingC::targetAt(int index) const
{
    return m_mapping.findTarget(index).getTargetPath();
}

int prxProjectMappingC::rowOf(int sourceLine) const
{
    const auto found = std::ranges::lower_bound(m_rows, sourceLine, {}, &MappingRow::sourceLine);
    return found != m_rows.end() && found->sourceLine == sourceLine ? int(found - m_rows.begin())
                                                                    : -1;
}

int prxProjectMappingC::sourceLineAt(int index) const
{
    return row(index).sourceLine;
}

int prxProjectMappingC::targetLineAt(int index) const
{
    return row(index).entry.getTargetLineId();
}

QString prxProjectMappingC::targetPathAt(int index) const
{
    return targetLineAt(index) == -1 ? QString() : targetAt(row(index).target);
}

int prxProjectMappingC::stateAt(int index) const
{
    return row(index).entry.getState();
}

bool prxProjectMappingC::isConflictAt(int index) const
{
    return row(index).entry.getConflict();
}

bool prxProjectMappingC::isOpenAt(int index) const
{
    const PrjMappingTargetLineC &entry = row(index).entry;
    if (entry.getConflict())
        return true;
    if (entry.getState() == PRJMAPPING::Verified)
        return false;
    return entry.getTargetLineId() == -1 || entry.getState() != PRJMAPPING::Mapped;
}

QString prxProjectMappingC::textAt(int index) const
{
    return row(index).entry.getExtended();
}

ProxyPtrT<VKTab::proxyTableC> prxProjectMappingC::sourceTable() const
{
    return readScriptTable(m_roots.source, path());
}

ProxyPtrT<VKTab::proxyTableC> prxProjectMappingC::targetTable(const QString &path) const
{
    return readScriptTable(m_roots.target, path);
}

const MappingRow &prxProjectMappingC::row(int index) const
{
    if (index < 0 || index >= rowCount()) {
        throw mzComExceptionC(mzComFailed, {QStringLiteral("The mapping of \"%1\" has no row %2")
                                                .arg(path(), QString::number(index)),
                                            {},
                                            0});
    }
    return m_rows[std::size_t(index)];
}

const proxyMemberDescListS *prxProjectMappingC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxProjectMappingC::getStaticProxyTypeInfo()
{
    using Self = prxProjectMappingC;
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&Self::path>("path"),
        proxyPropertyRead<&Self::version>("version"),
        proxyPropertyRead<&Self::hasTableError>("hasTableError"),
        proxyPropertyRead<&Self::lines>("lines"),
        proxyPropertyRead<&Self::notFound>("notFound"),
        proxyPropertyRead<&Self::mapped>("mapped"),
        proxyPropertyRead<&Self::toCheck>("toCheck"),
        proxyPropertyRead<&Self::verified>("verified"),
        proxyPropertyRead<&Self::targetCount>("targetCount"),
        proxyMethod<&Self::targetAt>("targetAt"),
        proxyPropertyRead<&Self::rowCount>("rowCount"),
        proxyMethod<&Self::rowOf>("rowOf"),
        proxyMethod<&Self::sourceLineAt>("sourceLineAt"),
        proxyMethod<&Self::targetLineAt>("targetLineAt"),
        proxyMethod<&Self::targetPathAt>("targetPathAt"),
        proxyMethod<&Self::stateAt>("stateAt"),
        proxyMethod<&Self::isConflictAt>("isConflictAt"),
        proxyMethod<&Self::isOpenAt>("isOpenAt"),
        proxyMethod<&Self::textAt>("textAt"),
        proxyMethod<&Self::sourceTable>("sourceTable"),
        proxyMethod<&Self::targetTable>("targetTable"),
    };
    static const proxyMemberDescListS description{.className = "prxProjectMappingC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
