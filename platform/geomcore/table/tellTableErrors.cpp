#include "tellTableErrors.h"

#include <core/message/PMessage.h>

#include <QHash>
#include <QStringList>

#include <mutex>

namespace VKTab {

namespace {

/// True if these are not the texts that were told of the project last; keeps them.
bool isNews(const QString &project, const QStringList &texts)
{
    static std::mutex lock;
    static QHash<QString, QStringList> told;
    const std::lock_guard guard(lock);
    if (told.value(project) == texts)
        return false;
    if (texts.isEmpty())
        told.remove(project);
    else
        told.insert(project, texts);
    return true;
}

} // namespace

void tellTableErrors(const QString &project, const TableErrorList &errors)
{
    QStringList texts;
    for (const TableError &error : errors)
        texts.append(error.toString());
    if (!isNews(project, texts))
        return;
    for (const QString &text : std::as_const(texts))
        PMessage::LogToWindow(text);
}

} // namespace VKTab
