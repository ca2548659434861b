// A class for scripts: counts words.
//   const words = createObject("example.words");
//   words.add("bolt M8"); words.add("nut M8");
//   print(words.count, words.countOf("M8"));    // 4 2

#include <core/component/proxyAutoRegisterT.h>
#include <core/component/proxyMember.h>
#include <core/plugin/Extensions.h>

#include <QHash>

namespace {

class WordCounter : public proxyObjectC
{
public:
    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        return getStaticProxyTypeInfo();
    }
    static const proxyMemberDescListS *getStaticProxyTypeInfo();

    void add(const QString &text)
    {
        const QStringList words = text.split(' ', Qt::SkipEmptyParts);
        for (const QString &word : words)
            ++m_counts[word];
        m_count += int(words.size());
    }
    int count() const { return m_count; }
    int countOf(const QString &word) const { return m_counts.value(word); }

private:
    QHash<QString, int> m_counts;
    int m_count = 0;
};

const proxyMemberDescListS *WordCounter::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyMethod<&WordCounter::add>("add"),
        proxyPropertyRead<&WordCounter::count>("count"),
        proxyMethod<&WordCounter::countOf>("countOf"),
    };
    static const proxyMemberDescListS description{
        .className = "WordCounter",
        .base = proxyObjectC::getStaticProxyTypeInfo(),
        .members = members,
        .componentId = "example.words",
        .creator = []() -> proxyObjectC * { return new WordCounter; },
        .file = __FILE__,
        .line = __LINE__};
    return &description;
}

} // namespace

VELK_EXTENSION
{
    static proxyAutoRegisterT<WordCounter> registration(mzComServerStateEventC::ServerStarted);
    registration.init();
}
