#include "countText.h"

#include <core/plugin/TranslationCatalog.h>

#include <QCoreApplication>
#include <QMutex>

#include <cmath>
#include <map>

namespace {

/// The form that a source text has for a count, from the German catalog that its library brings;
/// null without one.
QString sourceForm(const char *text, const char *context, int count)
{
    static QMutex mutex;
    // Never destroyed, as libraries may go late.
    static auto *const catalogs = new std::map<QByteArray, std::unique_ptr<TranslationCatalog>>;
    const QMutexLocker lock(&mutex);
    std::unique_ptr<TranslationCatalog> &catalog = (*catalogs)[context];
    if (!catalog)
        catalog = TranslationCatalog::load(QString::fromUtf8(context), QStringLiteral("de"));
    return catalog ? catalog->translator.translate(context, text, nullptr, count) : QString();
}

} // namespace

QString countText(qint64 count, const QLocale &locale)
{
    return locale.toString(count);
}

QString percentText(double share, const QLocale &locale)
{
    return locale.toString(int(std::floor(share * 100 + 1e-9))) + QStringLiteral(" %");
}

QString boundText(double share, const QLocale &locale)
{
    return locale.toString(std::ceil(share * 1000) / 10, 'f', 1);
}

QString translateCount(const char *text, const char *context, int count)
{
    // What nobody translates is German, too, with forms of its own.
    if (QCoreApplication::translate(context, text) == QString::fromUtf8(text)) {
        const QString form = sourceForm(text, context, count);
        if (!form.isEmpty())
            return QString(form).replace(QLatin1String("%Ln"), countText(count));
    }
    return QCoreApplication::translate(context, text, nullptr, count);
}
