#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

class ReleaseMappingC;

/// Compares all value range texts of a release with the tables of the target projects: a text is
/// typed by hand or left over from a former table.
class ValueRangeCheck
{
    Q_DECLARE_TR_FUNCTIONS(ValueRangeCheck)

public:
    enum Kind {
        NotParsed,    ///< the row is not of the form `{NAME=VALUE} -> 17`
        UnknownLine,  ///< the target table has no such line
        TableMissing, ///< the target project or its table cannot be read: one finding a target
        NoTarget,     ///< the row names a line, and its target has no path
    };
    struct Finding
    {
        Kind kind = NotParsed;
        LineRef line;
        QString targetPath;
        int row = 0; ///< of the text, from 1
        QString rowText;
        int targetLine = -1; ///< that is not there
        QString text;        ///< German: what is wrong, where, what to do
    };
    struct Result
    {
        QList<Finding> findings; ///< in stored order of the projects, by source line
        int texts = 0;           ///< lines with a value range text
        int rows = 0;            ///< their rows
        bool cancelled = false;

        /// German, one sentence.
        [[nodiscard]] QString summary() const;
    };

    /// \a targetRoot is the directory to which target paths are relative. Shows a progress that can
    /// be cancelled.
    [[nodiscard]] static Result run(const ReleaseMappingC &release, const QString &targetRoot);
};
