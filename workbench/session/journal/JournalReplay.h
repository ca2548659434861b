#pragma once

#include "JournalReader.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <QByteArray>

/// What comes of a release when the changes that a session noted are applied to it.
struct JournalReplay
{
    enum class Extent {
        Unbroken, ///< up to the first damage, or the first change that does not fit
        Fitting,  ///< all that can be read and fits
    };

    /// Begins with a record of the session.
    [[nodiscard]] static JournalReplay run(const JournalReader::Session &session,
                                           const ReleaseMappingC &base, int from, Extent extent);

    ReleaseMappingC release;
    int records = 0; ///< index behind the last record that was looked at
    int applied = 0; ///< changes
    int refused = 0; ///< changes that did not fit
};
