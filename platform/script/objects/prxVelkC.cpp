#include "prxVelkC.h"

#include "scriptFailure.h"

#include "readScriptTable.h"

#include <core/component/proxyMember.h>
#include <core/Version.h>
#include <geomcore/erp/LinkDbErpNumbers.h>
#include <geomcore/records/MappingFile.h>

namespace {

/// No source date reads so; used to learn a file's dates without making records.
const QString noDate = QStringLiteral("\x01");

MappingFile readFile(const QString &path, const QString &sourceDate)
{
    MappingFile file;
    QString error;
    if (!file.read(path, sourceDate, &error))
        scriptFailure(error);
    return file;
}

} // namespace

prxVelkC::~prxVelkC() = default;

QString prxVelkC::version() const
{
    return velkVersion();
}

ProxyPtrT<prxReleaseMappingC> prxVelkC::openMapping(const QString &file) const
{
    const QStringList dates = readFile(file, noDate).sourceDates();
    if (dates.isEmpty())
        scriptFailure(file + QStringLiteral(": the file holds no release"));
    return openRelease(file, dates.last(), {}, {});
}

ProxyPtrT<prxReleaseMappingC> prxVelkC::openRelease(const QString &file, const QString &sourceDate,
                                                    const QString &sourceRoot,
                                                    const QString &targetRoot) const
{
    const MappingFile read = readFile(file, sourceDate.isEmpty() ? noDate : sourceDate);
    if (!read.contains(sourceDate)) {
        scriptFailure(QStringLiteral("%1: there is no release %2; the file holds %3")
                          .arg(file, sourceDate, read.sourceDates().join(QStringLiteral(", "))));
    }
    return ProxyPtrT<prxReleaseMappingC>(
        new prxReleaseMappingC(read.release(sourceDate), {sourceRoot, targetRoot}));
}

ProxyPtrT<VKTab::proxyTableC> prxVelkC::openTable(const QString &projectFile) const
{
    return readScriptTable({}, projectFile);
}

bool prxVelkC::hasLinkDb() const
{
    return PLinkDbC::instance()->isOpen();
}

ProxyPtrT<prxErpNumbersC> prxVelkC::erpNumbers(const QString &projectPath) const
{
    QString error;
    const auto numbers = LinkDbErpNumbers().numbersOf(projectPath, {}, &error);
    if (!numbers)
        scriptFailure(error);
    return ProxyPtrT<prxErpNumbersC>(new prxErpNumbersC(*numbers));
}

const proxyMemberDescListS *prxVelkC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxVelkC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&prxVelkC::version>("version"),
        proxyMethod<&prxVelkC::openMapping>("openMapping"),
        proxyMethod<&prxVelkC::openRelease>("openRelease"),
        proxyMethod<&prxVelkC::openTable>("openTable"),
        proxyPropertyRead<&prxVelkC::hasLinkDb>("hasLinkDb"),
        proxyMethod<&prxVelkC::erpNumbers>("erpNumbers"),
    };
    static const proxyMemberDescListS description{.className = "prxVelkC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
