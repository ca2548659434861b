#pragma once

#include "Nodes.h"
#include "Token.h"

#include <geomcore/value/VarId.h>

#include <QList>

#include <memory>
#include <optional>

namespace VKTab {

/// What names a statement may use. As it stands: any name.
class VELKGEOMCORE_EXPORT StatementNames
{
public:
    virtual ~StatementNames();

    [[nodiscard]] virtual bool isReadable(const QString &name, bool prefixed) const;
    [[nodiscard]] virtual bool isAssignable(const QString &name) const;
    /// Id that a node carries for the assigned variable.
    [[nodiscard]] virtual VarId idOf(const QString &name);
};

/// Result of a parse: a tree, or what is wrong (without the prefix "error: "). The text names the
/// place, counted from 1: the character, and in a text of several lines the line before it.
struct ParsedStatement
{
    std::unique_ptr<NodeBase> node;
    QString error;
    /// Place of the error, counted from 0.
    qsizetype errorPosition = 0;
};

/// Parses one statement by recursive descent. Bounded in depth, so safe on any text; makes one
/// error, the first. One object for one text.
class VELKGEOMCORE_EXPORT StatementParser
{
public:
    StatementParser(const QString &text, StatementNames &names);
    ~StatementParser();

    /// Any one statement, or with a name only an assignment to that variable. Errors are texts for
    /// the user.
    [[nodiscard]] ParsedStatement parse(const std::optional<QString> &assignedVariable = {});

private:
    using Node = std::unique_ptr<NodeBase>;

    Node parseStatement(const std::optional<QString> &assignedVariable);
    Node parseAssignment();
    Node parseExpression(int precedence);
    Node parsePrefix();
    Node parsePrimary();
    Node parseBrackets();
    Node parseVariable(bool prefixed);
    Node parseFunction();
    bool parseArguments(NodeFunction &call);
    Node joined(const Token &op, Node left, Node right);
    bool add(NodeBase &parent, Node child, bool logical);

    [[nodiscard]] const Token &token() const;
    [[nodiscard]] const Token &token(qsizetype ahead) const;
    [[nodiscard]] bool atEnd() const;
    Token take();
    bool takeClosingBracket();

    /// Keeps the first error and gives null.
    Node fail(qsizetype position, const QString &message);
    Node failExpected(const char *expected);
    [[nodiscard]] QString found() const;
    /// "Zeichen 5: MESSAGE", in a text of several lines "Zeile 2, Zeichen 5: MESSAGE".
    [[nodiscard]] QString placed(qsizetype position, const QString &message) const;

    const QString m_text;
    QList<Token> m_tokens;
    Token m_end;
    qsizetype m_next = 0;
    int m_level = 0;
    StatementNames &m_names;
    QString m_error;
    qsizetype m_errorPosition = 0;
};

} // namespace VKTab
