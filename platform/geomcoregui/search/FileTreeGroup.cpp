#include "FileTreeGroup.h"

#include "IndexSearcher.h"

#include <core/config/PConfigVal.h>

namespace {

constexpr int mostWords = 10;

QString section(int number)
{
    return number == 0 ? QStringLiteral("CatalogSearch")
                       : QStringLiteral("CatalogSearch%1").arg(number);
}

QString key(qsizetype index)
{
    return QStringLiteral("Words%1").arg(index + 1);
}

} // namespace

FileTreeGroup::FileTreeGroup(int number)
    : m_number(number)
{
}

FileTreeGroup::~FileTreeGroup() = default;

void FileTreeGroup::SetAppConfig(const PRefPtr<PConfig> &config)
{
    m_config = config;
}

void FileTreeGroup::Init()
{
    m_words.clear();
    for (int i = 0; m_config && i < mostWords; ++i) {
        const QString words = m_config->getItemValue(key(i), section(m_number), {}).GetString();
        if (!words.isEmpty())
            m_words.append(words);
    }
    if (!m_searcher)
        m_searcher = std::make_unique<IndexSearcher>();
    m_searcher->update();
}

void FileTreeGroup::setSearcher(std::unique_ptr<CatalogSearcherI> searcher)
{
    m_searcher = std::move(searcher);
}

void FileTreeGroup::addRecentWords(const QString &words)
{
    const QString text = words.simplified();
    if (text.isEmpty() || m_words.value(0) == text)
        return;
    m_words.removeAll(text);
    m_words.prepend(text);
    m_words = m_words.mid(0, mostWords);
    for (qsizetype i = 0; m_config && i < m_words.size(); ++i)
        m_config->SetValue(key(i), section(m_number), m_words.at(i));
}
