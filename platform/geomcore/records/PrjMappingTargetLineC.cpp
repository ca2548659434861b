#include "PrjMappingTargetLineC.h"

namespace {

constexpr QStringView Arrow = u" -> ";

/// Whether the text is a row of groups `{NAME=VALUE}`, in which a backslash stands before a brace,
/// an equals sign or a backslash that belongs to a name or value.
bool isVarvalueString(QStringView text)
{
    enum {
        Outside,
        Name,
        Value,
    } place = Outside;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (place == Outside) {
            if (c == u'{')
                place = Name;
            else if (c != u' ')
                return false;
        } else if (c == u'\\') {
            ++i;
        } else if (c == u'{') {
            return false;
        } else if (c == u'=' && place == Name) {
            place = Value;
        } else if (c == u'}') {
            if (place == Name)
                return false;
            place = Outside;
        }
    }
    return place == Outside && !text.trimmed().isEmpty();
}

} // namespace

PrjMappingTargetLineC::PrjMappingTargetLineC(int targetLineId, PRJMAPPING::CheckState state,
                                             const QString &extended)
    : m_targetLine(targetLineId)
    , m_state(state)
{
    if (!extended.isEmpty())
        m_extended = ExtendedTextPtr(new ExtendedText(extended));
}

PrjMappingTargetLineC::PrjMappingTargetLineC(int targetLineId, PRJMAPPING::CheckState state,
                                             bool conflict, const ExtendedTextPtr &extended)
    : m_targetLine(targetLineId)
    , m_state(state)
    , m_conflict(conflict)
    , m_extended(extended)
{
}

void PrjMappingTargetLineC::addVarset(const QString &values, int targetLineId)
{
    if (m_extended)
        m_extended.detach();
    else
        m_extended = ExtendedTextPtr(new ExtendedText(QString()));
    QString &text = m_extended->text;
    if (!text.isEmpty() && !text.endsWith(u'\n'))
        text += u'\n';
    text += values;
    text += Arrow;
    text += QString::number(targetLineId);
}

void PrjMappingTargetLineC::clearVarsetList()
{
    m_extended.reset();
}

QList<QPair<QString, int>> PrjMappingTargetLineC::getVarsetList() const
{
    QList<QPair<QString, int>> list;
    if (!m_extended)
        return list;
    const QStringView text(m_extended->text);
    for (QStringView row : text.split(u'\n')) {
        const qsizetype arrow = row.lastIndexOf(Arrow);
        if (arrow < 0 || !isVarvalueString(row.left(arrow)))
            continue;
        bool ok = false;
        const int target = row.mid(arrow + Arrow.size()).trimmed().toInt(&ok);
        if (ok)
            list.emplaceBack(row.left(arrow).toString(), target);
    }
    return list;
}

bool operator==(const PrjMappingTargetLineC &a, const PrjMappingTargetLineC &b)
{
    return a.m_targetLine == b.m_targetLine && a.m_state == b.m_state &&
           a.m_conflict == b.m_conflict && a.getExtended() == b.getExtended();
}
