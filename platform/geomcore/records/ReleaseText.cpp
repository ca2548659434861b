#include "ReleaseText.h"

#include "ReleaseWriter.h"

#include <core/json/JsonWriter.h>

namespace {

QByteArray writtenText(const ReleaseMappingC &release)
{
    JsonWriter writer(JsonWriter::Indented, ReleaseText::Level);
    writeRelease(writer, release, false);
    return writer.take();
}

} // namespace

ReleaseText::ReleaseText(const ReleaseMappingC &release)
    : m_release(release)
    , m_text(writtenText(release))
{
}
