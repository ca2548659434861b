#pragma once

#include "ExitStatus.h"

#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

struct LinkDbSettings;

namespace velkmap {

class CommandLine;

/// The option --linkdb: the link database that a command works on, which is that of the process
/// while this object lives.
class LinkDbOption
{
public:
    LinkDbOption() = default;
    ~LinkDbOption();
    LinkDbOption(const LinkDbOption &) = delete;
    LinkDbOption &operator=(const LinkDbOption &) = delete;

    /// \a more: what it is for.
    static void add(CommandLine &line, const QString &more = {});
    /// The address alone, for commands that cannot do without. A result means that it is missing or
    /// cannot be understood; the message says why.
    [[nodiscard]] static std::optional<ExitStatus> read(const CommandLine &line,
                                                        LinkDbSettings &settings, QTextStream &err);
    /// Connects if the option is set. A result means that this failed; the message says why.
    [[nodiscard]] std::optional<ExitStatus> open(const CommandLine &line, QTextStream &err);

private:
    bool m_isOpen = false;
};

} // namespace velkmap
