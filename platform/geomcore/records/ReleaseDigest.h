#pragma once

#include "ReleaseMappingC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>

#include <mutex>
#include <optional>

/// What is noted of the JSON text of a release when it is written into a mapping file: enough to
/// tell later whether a file holds it. Holds a copy of the release, so that whoever changes a
/// release gets one that notes nothing. Any thread.
class VELKGEOMCORE_EXPORT ReleaseDigest
{
public:
    struct Text
    {
        qint64 size = 0;
        QByteArray hash; ///< by ContentHash
    };
    /// The depth of a release in its file.
    static constexpr int Level = 1;

    explicit ReleaseDigest(const ReleaseMappingC &release);

    /// None as long as the release was not written as it stands in a file.
    [[nodiscard]] std::optional<Text> text() const;
    void note(const Text &text);

private:
    const ReleaseMappingC m_release;
    mutable std::mutex m_mutex;
    std::optional<Text> m_text;
};
