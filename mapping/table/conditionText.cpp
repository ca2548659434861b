#include "conditionText.h"

QString conditionText(const QHash<QString, MapVarValueC> &varset)
{
    QString text;
    for (auto value = varset.begin(); value != varset.end(); ++value) {
        if (!text.isEmpty())
            text += QStringLiteral(" .AND. ");
        text += value.key() + QStringLiteral(" .EQ. ");
        const QString shown = value->getValue().toString();
        text += value->isNumeric() ? shown : u'\'' + shown + u'\'';
    }
    return text;
}
