#include "PrjFile.h"

#include <QFileInfo>

namespace {

const QString LexemSection = QStringLiteral("PROJECT");
const QString VariableSection = QStringLiteral("VARIABLES");

} // namespace

int PrjFile::Load(const QString &nativePath, bool create)
{
    m_errorText.clear();
    m_file = PIniFile();
    if (create && !QFileInfo::exists(nativePath))
        return 1;
    if (m_file.load(nativePath))
        return 1;
    m_errorText = m_file.errorText();
    return -1;
}

int PrjFile::Save(const QString &nativePath)
{
    const bool saved = m_file.save(nativePath);
    m_errorText = saved ? QString() : m_file.errorText();
    return saved ? 1 : -1;
}

QString PrjFile::GetLexemValue(const QString &name) const
{
    return m_file.value(LexemSection, name);
}

void PrjFile::SetLexemValue(const QString &name, const QString &value)
{
    m_file.setValue(LexemSection, name, value);
}

QStringList PrjFile::lexemNames() const
{
    return m_file.keys(LexemSection);
}

QMap<QString, QString> PrjFile::variables() const
{
    QMap<QString, QString> values;
    for (const QString &name : m_file.keys(VariableSection))
        values.insert(name, m_file.value(VariableSection, name));
    return values;
}

void PrjFile::setVariable(const QString &name, const QString &value)
{
    m_file.setValue(VariableSection, name, value);
}
