#pragma once

#include "ReleaseMappingC.h"

#include <QByteArray>

/// The JSON text of a release as it stands in a mapping file. Holds a copy of the release, so that
/// whoever changes a release gets one that knows nothing of the text.
class ReleaseText
{
public:
    explicit ReleaseText(const ReleaseMappingC &release);

    /// The depth of a release in its file.
    static constexpr int Level = 1;
    [[nodiscard]] const QByteArray &text() const { return m_text; }

private:
    const ReleaseMappingC m_release;
    const QByteArray m_text;
};
