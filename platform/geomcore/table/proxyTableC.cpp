#include "proxyTableC.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/proxyMember.h>

namespace VKTab {

proxyTableC::proxyTableC(const Content &content)
    : m_content(content)
{
}

proxyTableC::~proxyTableC() = default;

ContentRef proxyTableC::getContent() const
{
    return m_content;
}

bool proxyTableC::isValid() const
{
    return m_content.isValid();
}

QString proxyTableC::path() const
{
    return m_content.getKeyValue(KeyProjectPath).toString();
}

QString proxyTableC::normNumber() const
{
    return m_content.getKeyValue(KeyNormNumber).toString();
}

int proxyTableC::lineCount() const
{
    return m_content.getLineCount();
}

int proxyTableC::lineAt(int row) const
{
    return m_content.getLineIdList().value(row).value(0);
}

bool proxyTableC::hasLine(int line) const
{
    return m_content.getLineInfo(line).isValid();
}

bool proxyTableC::isVisible(int line) const
{
    return m_content.isLineVisible(line);
}

QString proxyTableC::normNumberOf(int line) const
{
    return m_content.getLine(line, false).getValue(LineI::NormNumber).toString();
}

QString proxyTableC::designationOf(int line) const
{
    return m_content.getLine(line, false).getValue(LineI::NormDesignation).toString();
}

int proxyTableC::columnCount() const
{
    return int(m_content.getVarList().size());
}

QString proxyTableC::columnAt(int index) const
{
    return m_content.getVarList().value(index).getName();
}

bool proxyTableC::hasColumn(const QString &name) const
{
    return m_content.getVar(name).isValid();
}

QString proxyTableC::titleOf(const QString &name) const
{
    return column(name).getDescription();
}

QString proxyTableC::value(int line, const QString &name) const
{
    return cell(line, name).toString();
}

mzComVariantC proxyTableC::number(int line, const QString &name) const
{
    const std::optional<double> number = cell(line, name).number();
    return number ? mzComVariantC(*number) : mzComVariantC();
}

int proxyTableC::findLine(const QString &name, const QString &text) const
{
    const Var var = column(name);
    const QVector<LineId> lines = m_content.getLineIdList();
    for (const LineId &line : lines) {
        if (m_content.getLine(line, false).hasValue(var, text, false))
            return line.value(0);
    }
    return -1;
}

Var proxyTableC::column(const QString &name) const
{
    const Var var = m_content.getVar(name);
    if (!var.isValid()) {
        throw mzComExceptionC(
            mzComFailed,
            {QStringLiteral("The table \"%1\" has no column \"%2\"").arg(path(), name), {}, 0});
    }
    return var;
}

Value proxyTableC::cell(int line, const QString &name) const
{
    return m_content.getLine(line, false).getValue(column(name), FormatPlain | FormatUntranslated);
}

const proxyMemberDescListS *proxyTableC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *proxyTableC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&proxyTableC::isValid>("isValid"),
        proxyPropertyRead<&proxyTableC::path>("path"),
        proxyPropertyRead<&proxyTableC::normNumber>("normNumber"),
        proxyPropertyRead<&proxyTableC::lineCount>("lineCount"),
        proxyMethod<&proxyTableC::lineAt>("lineAt"),
        proxyMethod<&proxyTableC::hasLine>("hasLine"),
        proxyMethod<&proxyTableC::isVisible>("isVisible"),
        proxyMethod<&proxyTableC::normNumberOf>("normNumberOf"),
        proxyMethod<&proxyTableC::designationOf>("designationOf"),
        proxyPropertyRead<&proxyTableC::columnCount>("columnCount"),
        proxyMethod<&proxyTableC::columnAt>("columnAt"),
        proxyMethod<&proxyTableC::hasColumn>("hasColumn"),
        proxyMethod<&proxyTableC::titleOf>("titleOf"),
        proxyMethod<&proxyTableC::value>("value"),
        proxyMethod<&proxyTableC::number>("number"),
        proxyMethod<&proxyTableC::findLine>("findLine"),
    };
    static const proxyMemberDescListS description{.className = "VKTab::proxyTableC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}

} // namespace VKTab
