#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <QString>

/// The whole road in this process: `velkmap import` of two trees of CSV tables, `create`, `assign`.
struct SampleRoad
{
    enum class Columns { All, WithoutFirst };

    QString error; ///< What failed, with what the command printed; empty: nothing.
    ReleaseMappingC release;

    /// \a workDirectory is empty at first and keeps catalogs and mapping file. The catalogs of both
    /// releases are named "catalog".
    [[nodiscard]] static SampleRoad run(const QString &oldTables, const QString &newTables,
                                        Columns columns, const QString &workDirectory);
    /// Template for a QTemporaryDir in the folder for temporary files.
    [[nodiscard]] static QString workTemplate();

    /// create and assign for catalogs at hand.
    [[nodiscard]] static SampleRoad run(const QString &oldRoot, const QString &newRoot,
                                        const QString &catalog, const QString &mappingFile);
};
