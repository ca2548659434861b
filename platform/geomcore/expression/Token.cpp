#include "Token.h"

namespace VKTab {

QString Token::content() const
{
    if (kind != TokenKind::Text && kind != TokenKind::OpenText)
        return text;
    QString inner = text.mid(1);
    if (kind == TokenKind::Text)
        inner.chop(1);
    return inner.replace(QLatin1String("''"), QLatin1String("'"));
}

} // namespace VKTab
