#include "PConfigVal.h"

namespace {

bool isOneOf(const QString &text, std::initializer_list<QStringView> words)
{
    for (const QStringView word : words) {
        if (text.compare(word, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

bool PConfigVal::GetBool(bool defaultValue) const
{
    const QString text = m_text.trimmed();
    if (isOneOf(text, {u"1", u"true", u"yes", u"on", u"ja"}))
        return true;
    if (isOneOf(text, {u"0", u"false", u"no", u"off", u"nein"}))
        return false;
    return defaultValue;
}

int PConfigVal::GetInt(int defaultValue) const
{
    bool ok = false;
    const int value = m_text.trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}
