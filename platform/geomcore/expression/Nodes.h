#pragma once

#include "NodeBase.h"

#include <QString>

namespace VKTab {

struct ExpressionFunction;

/// Operators of arithmetic and comparison nodes.
enum class NodeOperator {
    None,
    Plus,
    Minus,
    Multiply,
    Divide,
    Power,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual
};

/// A number as written.
class VELKGEOMCORE_EXPORT NodeNumber : public NodeBase
{
public:
    NodeNumber(const QString &text, qsizetype position);
    ~NodeNumber() override;

    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
};

/// A text in quotes.
class VELKGEOMCORE_EXPORT NodeText : public NodeBase
{
public:
    /// content is the text without its quotes.
    NodeText(const QString &content, qsizetype position);
    ~NodeText() override;

    [[nodiscard]] const QString &content() const { return m_content; }

private:
    QString m_content;
};

/// A variable that is read.
class VELKGEOMCORE_EXPORT NodeVariable : public NodeBase
{
public:
    NodeVariable(const QString &name, bool prefixed, qsizetype position);
    ~NodeVariable() override;

    [[nodiscard]] const QString &name() const { return m_name; }
    /// Written with the prefix "SOURCE@".
    [[nodiscard]] bool isPrefixed() const { return m_prefixed; }

private:
    QString m_name;
    bool m_prefixed;
};

/// A sign, an arithmetic operation, a comparison, .NOT., or a chain of .AND. or .OR..
class VELKGEOMCORE_EXPORT NodeOperation : public NodeBase
{
public:
    NodeOperation(NodeArt art, NodeOperator op, qsizetype position);
    ~NodeOperation() override;

    [[nodiscard]] NodeOperator op() const { return m_op; }

private:
    NodeOperator m_op;
};

/// A call; the children are the arguments.
class VELKGEOMCORE_EXPORT NodeFunction : public NodeBase
{
public:
    NodeFunction(const ExpressionFunction &function, qsizetype position);
    ~NodeFunction() override;

    [[nodiscard]] const ExpressionFunction &function() const { return m_function; }

private:
    const ExpressionFunction &m_function;
};

/// Stands for a statement that did not parse.
class VELKGEOMCORE_EXPORT NodeInvalid : public NodeBase
{
public:
    explicit NodeInvalid(qsizetype position);
    ~NodeInvalid() override;
};

} // namespace VKTab
