#include "Nodes.h"

#include "ExpressionFunctions.h"

namespace VKTab {

namespace {

NodeType typeOfArt(NodeArt art)
{
    return art == SignArt || art == ArithmeticArt ? NumberType : LogicalType;
}

} // namespace

NodeNumber::NodeNumber(const QString &text, qsizetype position)
    : NodeBase(NumberArt, NumberType, position)
    , m_text(text)
{
}

NodeNumber::~NodeNumber() = default;

NodeText::NodeText(const QString &content, qsizetype position)
    : NodeBase(TextArt, TextType, position)
    , m_content(content)
{
}

NodeText::~NodeText() = default;

NodeVariable::NodeVariable(const QString &name, bool prefixed, qsizetype position)
    : NodeBase(VariableArt, ValueType, position)
    , m_name(name)
    , m_prefixed(prefixed)
{
}

NodeVariable::~NodeVariable() = default;

NodeOperation::NodeOperation(NodeArt art, NodeOperator op, qsizetype position)
    : NodeBase(art, typeOfArt(art), position)
    , m_op(op)
{
}

NodeOperation::~NodeOperation() = default;

NodeFunction::NodeFunction(const ExpressionFunction &function, qsizetype position)
    : NodeBase(FunctionArt, function.result, position)
    , m_function(function)
{
}

NodeFunction::~NodeFunction() = default;

NodeInvalid::NodeInvalid(qsizetype position)
    : NodeBase(InvalidArt, InvalidType, position)
{
}

NodeInvalid::~NodeInvalid() = default;

} // namespace VKTab
