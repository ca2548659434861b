#include "ReleaseMappingC.h"

#include "MappingList.h"
#include "ReleaseDigest.h"
#include "ReleaseReader.h"
#include "ReleaseWriter.h"

#include <core/files/ContentHash.h>
#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>

#include <mutex>

namespace {

/// Where somebody wants to have noted what is written of a release; a copy that will be changed has
/// none. Any thread.
class WantedDigest
{
public:
    WantedDigest() = default;
    WantedDigest(const WantedDigest &) {}
    WantedDigest &operator=(const WantedDigest &) = delete;
    ~WantedDigest() = default;

    [[nodiscard]] std::shared_ptr<ReleaseDigest> get() const
    {
        const std::lock_guard guard(m_mutex);
        return m_digest.lock();
    }
    void set(const std::shared_ptr<ReleaseDigest> &digest)
    {
        const std::lock_guard guard(m_mutex);
        m_digest = digest;
    }

private:
    mutable std::mutex m_mutex;
    std::weak_ptr<ReleaseDigest> m_digest;
};

void writeNoting(JsonWriter &writer, const ReleaseMappingC &release, ReleaseDigest &digest)
{
    ContentHash hash;
    qint64 size = 0;
    const auto see = [&](QByteArrayView piece) {
        hash.add(piece);
        size += piece.size();
    };
    writer.seen(see, [&] { writeRelease(writer, release, false); });
    digest.note({size, hash.result()});
}

} // namespace

class ReleaseMappingData : public QSharedData
{
public:
    mutable WantedDigest digest;
    QString sourceDate;
    QString targetDate;
    QList<AgreedReplacement> replacements;
    QList<LearnedReplacement> learned;
    MappingList mappings;
};

ReleaseMappingC::ReleaseMappingC()
    : d(new ReleaseMappingData)
{
}

ReleaseMappingC::ReleaseMappingC(const ReleaseMappingC &) = default;

ReleaseMappingC::ReleaseMappingC(ReleaseMappingC &&) noexcept = default;

ReleaseMappingC &ReleaseMappingC::operator=(const ReleaseMappingC &) = default;

ReleaseMappingC &ReleaseMappingC::operator=(ReleaseMappingC &&) noexcept = default;

ReleaseMappingC::~ReleaseMappingC() = default;

QString ReleaseMappingC::getSourceDate() const
{
    return d->sourceDate;
}

void ReleaseMappingC::setSourceDate(const QString &date)
{
    d->sourceDate = date;
}

QString ReleaseMappingC::getTargetDate() const
{
    return d->targetDate;
}

void ReleaseMappingC::setTargetDate(const QString &date)
{
    d->targetDate = date;
}

QList<AgreedReplacement> ReleaseMappingC::getReplacements() const
{
    return d->replacements;
}

void ReleaseMappingC::setReplacements(const QList<AgreedReplacement> &replacements)
{
    d->replacements = replacements;
}

QList<LearnedReplacement> ReleaseMappingC::getLearned() const
{
    return d->learned;
}

void ReleaseMappingC::setLearned(const QList<LearnedReplacement> &learned)
{
    d->learned = learned;
}

ReleaseMappingC ReleaseMappingC::head() const
{
    ReleaseMappingC result = *this;
    result.clearMappings();
    return result;
}

QList<PrjMappingC> ReleaseMappingC::getMappingList() const
{
    QList<PrjMappingC> list;
    list.reserve(countMappings());
    for (int i = 0; i < countMappings(); ++i)
        list.append(d->mappings.at(i));
    return list;
}

int ReleaseMappingC::countMappings() const
{
    return d->mappings.size();
}

PrjMappingC ReleaseMappingC::mappingAt(int position) const
{
    return position >= 0 && position < countMappings() ? d->mappings.at(position) : PrjMappingC();
}

bool ReleaseMappingC::sharesMapping(const ReleaseMappingC &other, int position) const
{
    return d->mappings.shares(other.d->mappings, position);
}

PrjMappingC ReleaseMappingC::findMapping(const QString &sourcePath, const QString &sourceVersion,
                                         const QString &tableVersion) const
{
    return mappingAt(findPosition(sourcePath, sourceVersion, tableVersion));
}

int ReleaseMappingC::findPosition(const QString &sourcePath, const QString &sourceVersion,
                                  const QString &tableVersion) const
{
    return d->mappings.find(sourcePath, sourceVersion, tableVersion);
}

QList<int> ReleaseMappingC::findPositions(const QString &sourcePath) const
{
    return d->mappings.findAll(sourcePath);
}

QList<int> ReleaseMappingC::firstPositions() const
{
    return d->mappings.firstPositions();
}

void ReleaseMappingC::addMapping(const PrjMappingC &mapping)
{
    MappingList &mappings = d->mappings;
    const int position =
        mappings.find(mapping.getSourcePath(), mapping.getSourceVersion(), mapping.getTabVersion());
    if (position >= 0)
        mappings.replace(position, mapping);
    else
        mappings.append(mapping);
}

void ReleaseMappingC::appendMapping(const PrjMappingC &mapping)
{
    d->mappings.append(mapping);
}

void ReleaseMappingC::clearMappings()
{
    d->mappings = MappingList();
}

PRJMAPPING::MappingState ReleaseMappingC::getMappingState() const
{
    return d->mappings.state();
}

void ReleaseMappingC::toJson(PJsonValue &out, bool headsOnly) const
{
    const std::shared_ptr<ReleaseDigest> digest = headsOnly ? nullptr : d->digest.get();
    const auto write = [copy = *this, headsOnly, digest](JsonWriter &writer) {
        const bool inFile = writer.hasDevice() && writer.layout() == JsonWriter::Indented &&
                            writer.level() == ReleaseDigest::Level;
        if (digest && inFile)
            writeNoting(writer, copy, *digest);
        else
            writeRelease(writer, copy, headsOnly);
    };
    out = PJsonValue::fromWriter(PJsonValue::Object, write);
}

std::shared_ptr<const ReleaseDigest> ReleaseMappingC::noteDigest() const
{
    const auto digest = std::make_shared<ReleaseDigest>(*this);
    d->digest.set(digest);
    return digest;
}

bool ReleaseMappingC::fromJson(const PJsonValue &in, QString *error)
{
    return readRelease(in.rawText(), *this, error);
}
