#pragma once

#include "Program.h"
#include "StatementParser.h"

#include <memory>
#include <mutex>

namespace VKTab {

/// What a stored statement serves for.
enum class ExpressionUse {
    /// Must be a comparison or several of them joined.
    Condition,
    /// Must be an assignment.
    Formula
};

/// Parses a statement and refuses one that does not fit its use.
[[nodiscard]] ParsedStatement parseFor(ExpressionUse use, const QString &text,
                                       StatementNames &names);

/// The same for the user: null, and a message "error: ...", if the text does not parse.
[[nodiscard]] VELKGEOMCORE_EXPORT std::unique_ptr<NodeBase>
parseOrReport(ExpressionUse use, const QString &text, StatementNames &names);

/// A stored statement: its text as written, and the program made from it at the first evaluation or
/// beforehand. Immutable for its users; any thread.
class VELKGEOMCORE_EXPORT ExpressionText
{
public:
    /// To be parsed at the first need with any names; if it fails then, the log window is told
    /// once.
    ExpressionText(ExpressionUse use, const QString &text);
    /// Parsed already.
    ExpressionText(const QString &text, const NodeBase &statement);
    ~ExpressionText();
    ExpressionText(const ExpressionText &) = delete;
    ExpressionText &operator=(const ExpressionText &) = delete;

    [[nodiscard]] const QString &text() const { return m_text; }
    /// Null if the text does not parse.
    [[nodiscard]] std::shared_ptr<const Program> program() const;
    /// What is wrong with the text; empty if it parses.
    [[nodiscard]] QString error() const;

private:
    void parse() const;

    const QString m_text;
    const ExpressionUse m_use = ExpressionUse::Condition;
    mutable std::once_flag m_once;
    mutable std::shared_ptr<const Program> m_program;
    mutable QString m_error;
};

} // namespace VKTab
