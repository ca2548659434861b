#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>
#include <QStringList>

/// The core's text: a QString with translation and environment references. Both types convert into
/// each other freely; texts given as `const char *` are UTF-8.
class VELKCORE_EXPORT PString : public QString
{
public:
    PString() = default;
    PString(const QString &text)
        : QString(text)
    {
    }
    PString(QString &&text) noexcept
        : QString(std::move(text))
    {
    }
    PString(const char *utf8)
        : QString(QString::fromUtf8(utf8))
    {
    }
    using QString::operator=;

    /// Translation of a German source text in the given context. Gives the source text if nothing
    /// is known, also before there is a QCoreApplication. Any thread.
    [[nodiscard]] static PString translate(const char *text, const char *context);

    /// Replaces references to environment values, `$NAME` and `${NAME}`, by their values. An
    /// unknown reference stays as it is written.
    [[nodiscard]] static PString ResolveEnvirons(const PString &text);
};

/// List of texts; the same as a QStringList for all who read it.
class VELKCORE_EXPORT PStringList : public QStringList
{
public:
    using QStringList::QStringList;
    PStringList() = default;
    PStringList(const QStringList &list)
        : QStringList(list)
    {
    }
};
