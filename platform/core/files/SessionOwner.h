#pragma once

#include <QDateTime>
#include <QString>

/// Who edits or edited a mapping file.
struct SessionOwner
{
    QString user;
    QString host;
    QString program;
    qint64 process = 0;
    QDateTime since; ///< UTC; not valid if unknown
};
