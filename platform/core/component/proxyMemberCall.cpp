#include "proxyMemberCall.h"

#include "mzComExceptionC.h"
#include "mzComVariantArrayC.h"
#include "proxyAutoParaListC.h"
#include "proxyAutoTypeCastC.h"
#include "proxyObjectC.h"

#include <QThread>

namespace {

mzComExceptionC failure(mzComResult code, const QString &text)
{
    return {code, PScriptException{text, {}, 0}};
}

QString argumentText(int count)
{
    if (count == 0)
        return QStringLiteral("no arguments");
    return count == 1 ? QStringLiteral("1 argument") : QStringLiteral("%1 arguments").arg(count);
}

} // namespace

mzComVariantC proxyMemberCall::operator()(const mzComVariantArrayC &arguments) const
{
    const quintptr thread = object.getStickyThreadId();
    if (thread != 0 && thread != reinterpret_cast<quintptr>(QThread::currentThreadId()))
        throw failure(mzComWrongThread, title() + QStringLiteral(": called on another thread"));
    return run(find(arguments.size()), arguments);
}

proxyMemberCall::Row proxyMemberCall::find(int argumentCount) const
{
    const proxyMemberDescS *similar = nullptr;
    for (const auto *owner = object.getProxyTypeInfo(); owner; owner = owner->base) {
        for (const proxyMemberDescS &member : owner->members) {
            if (member.kind != kind || name.text() != QLatin1StringView(member.name))
                continue;
            if (member.argumentCount == argumentCount)
                return {owner, &member};
            similar = similar ? similar : &member;
        }
    }
    if (similar)
        throw wrongCount(similar->argumentCount, argumentCount);
    throw unknownMember();
}

mzComVariantC proxyMemberCall::run(const Row &row, const mzComVariantArrayC &arguments) const
{
    proxyObjectC *const target = object.proxyCast(row.owner);
    if (!target)
        throw unknownMember();
    mzComVariantC value;
    proxyAutoParaListC parameters(arguments);
    proxyAutoTypeCastC result(&value);
    try {
        row.member->invoker(*target, parameters, result);
    } catch (const mzComExceptionC &error) {
        if (error.code() != mzComTypeCast)
            throw;
        throw wrongType(parameters.lastIndex());
    }
    return value;
}

mzComExceptionC proxyMemberCall::unknownMember() const
{
    const QString className = QString::fromUtf8(object.getProxyTypeInfo()->className);
    QString text = QStringLiteral("%1 has no method \"%2\"");
    if (kind == proxyMemberDescS::PropertyRead)
        text = QStringLiteral("%1 has no property \"%2\" that can be read");
    else if (kind == proxyMemberDescS::PropertyWrite)
        text = QStringLiteral("%1 has no property \"%2\" that can be written");
    return failure(mzComUnknownMember, text.arg(className, name.text()));
}

mzComExceptionC proxyMemberCall::wrongCount(int expected, int given) const
{
    return failure(mzComWrongArgumentCount,
                   QStringLiteral("%1 takes %2, not %3")
                       .arg(title(), argumentText(expected), QString::number(given)));
}

mzComExceptionC proxyMemberCall::wrongType(int index) const
{
    if (index < 0)
        return failure(mzComTypeCast, title() + QStringLiteral(": a value is of the wrong type"));
    return failure(mzComTypeCast, QStringLiteral("%1: argument %2 is of the wrong type")
                                      .arg(title(), QString::number(index + 1)));
}

QString proxyMemberCall::title() const
{
    return QString::fromUtf8(object.getProxyTypeInfo()->className) + u'.' + name.text();
}
