#include "FuzzFolder.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <release/history/JournalRow.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/journal/JournalReader.h>
#include <workbench/session/journal/JournalText.h>

#include <cstdint>

namespace {

/// Rows without a checksum get one, so that what is behind it is reached.
QByteArray framed(const QByteArray &rows)
{
    QByteArray journal;
    for (const QByteArray &row : rows.split('\n'))
        journal += VelkRelease::JournalRow::unframe(row) ? row + '\n'
                                                         : VelkRelease::JournalRow::frame(row);
    return journal;
}

ReleaseMappingC sampleRelease()
{
    PrjMappingC mapping;
    mapping.setSourcePath(QStringLiteral("cat/a.prj"));
    mapping.setSourceVersion(QStringLiteral("v1"));
    PrjMappingTargetC target;
    target.setTargetPath(QStringLiteral("cat/b.prj"));
    target.setValid(true);
    for (int line = 1; line < 20; ++line)
        target.addLineId(line, line + 1, PRJMAPPING::Mapped, QString());
    mapping.insertTarget(0, target);
    ReleaseMappingC release;
    release.addMapping(mapping);
    return release;
}

void replay(const JournalReader::Session &session)
{
    ReleaseMappingC release = sampleRelease();
    for (const QByteArray &record : session.records) {
        const PJsonValue parsed = JournalReader::parse(record);
        const auto change = JournalText::readChange(parsed);
        if (!change)
            continue;
        (void)applyChange(release, *change);
        const QByteArray written = JournalText::writeChange(*change, 1);
        if (!JournalText::readChange(JournalReader::parse(written)))
            __builtin_trap();
    }
}

} // namespace

/// Reads any rows as a journal and applies the changes in it to a release: whole rows as they are,
/// all others as records.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const FuzzFolder folder;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &journal : {bytes, framed(bytes)}) {
        JournalReader reader;
        if (!reader.read(folder.write("fuzz.journal", journal)))
            __builtin_trap();
        for (const JournalReader::Session &session : reader.sessions()) {
            (void)JournalReader::steps(session);
            replay(session);
        }
    }
    return 0;
}
