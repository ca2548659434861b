#include "StatementParser.h"

#include "ExpressionFunctions.h"
#include "NodeAssign.h"
#include "Tokenizer.h"

#include <core/text/PString.h>

namespace VKTab {

namespace {

constexpr const char *messageContext = "VelkGeomCore";

enum Precedence {
    OrPrecedence = 1,
    AndPrecedence,
    NotPrecedence,
    ComparisonPrecedence,
    AdditivePrecedence,
    MultiplicativePrecedence,
    SignPrecedence,
    PowerPrecedence
};

struct BinaryOperator
{
    const char *text;
    int precedence;
    NodeArt art;
    NodeOperator op;
};

constexpr BinaryOperator binaryOperators[] = {
    {".OR.", OrPrecedence, OrArt, NodeOperator::None},
    {".AND.", AndPrecedence, AndArt, NodeOperator::None},
    {".EQ.", ComparisonPrecedence, ComparisonArt, NodeOperator::Equal},
    {".NE.", ComparisonPrecedence, ComparisonArt, NodeOperator::NotEqual},
    {".LT.", ComparisonPrecedence, ComparisonArt, NodeOperator::Less},
    {".LE.", ComparisonPrecedence, ComparisonArt, NodeOperator::LessEqual},
    {".GT.", ComparisonPrecedence, ComparisonArt, NodeOperator::Greater},
    {".GE.", ComparisonPrecedence, ComparisonArt, NodeOperator::GreaterEqual},
    {"+", AdditivePrecedence, ArithmeticArt, NodeOperator::Plus},
    {"-", AdditivePrecedence, ArithmeticArt, NodeOperator::Minus},
    {"*", MultiplicativePrecedence, ArithmeticArt, NodeOperator::Multiply},
    {"/", MultiplicativePrecedence, ArithmeticArt, NodeOperator::Divide},
    {"**", PowerPrecedence, ArithmeticArt, NodeOperator::Power},
};

bool isOperator(const Token &token)
{
    return token.kind == TokenKind::Arithmetic || token.kind == TokenKind::Comparison ||
           token.kind == TokenKind::Logic;
}

/// Null for what stands between no two operands, such as .NOT.
const BinaryOperator *findBinary(const Token &token)
{
    if (!isOperator(token))
        return nullptr;
    for (const BinaryOperator &candidate : binaryOperators) {
        if (token.text.compare(QLatin1String(candidate.text), Qt::CaseInsensitive) == 0)
            return &candidate;
    }
    return nullptr;
}

bool isNot(const Token &token)
{
    return token.kind == TokenKind::Logic && !findBinary(token);
}

bool isSign(const Token &token)
{
    return token.kind == TokenKind::Arithmetic &&
           (token.text == QLatin1String("+") || token.text == QLatin1String("-"));
}

QString translated(const char *text)
{
    return PString::translate(text, messageContext);
}

bool isChain(const NodeBase &node, NodeArt art)
{
    return node.getArt() == art && (art == AndArt || art == OrArt);
}

} // namespace

StatementNames::~StatementNames() = default;

bool StatementNames::isReadable(const QString &, bool) const
{
    return true;
}

bool StatementNames::isAssignable(const QString &) const
{
    return true;
}

VarId StatementNames::idOf(const QString &)
{
    return VarId(1);
}

StatementParser::StatementParser(const QString &text, StatementNames &names)
    : m_text(text)
    , m_tokens(Tokenizer()(text))
    , m_names(names)
{
    m_end.start = text.size();
}

StatementParser::~StatementParser() = default;

ParsedStatement StatementParser::parse(const std::optional<QString> &assignedVariable)
{
    Node node = parseStatement(assignedVariable);
    if (node && !atEnd())
        node = failExpected(QT_TRANSLATE_NOOP("VelkGeomCore", "ein Operator oder das Ende"));
    return {std::move(node), m_error, m_errorPosition};
}

StatementParser::Node
StatementParser::parseStatement(const std::optional<QString> &assignedVariable)
{
    if (m_tokens.isEmpty())
        return fail(0, translated("Der Text ist leer"));
    const bool assignment =
        token().kind == TokenKind::Name && token(1).kind == TokenKind::Assignment;
    if (assignedVariable && (!assignment || token().text != *assignedVariable)) {
        return fail(
            token().start,
            translated("Erwartet wird eine Zuweisung an die Variable %1").arg(*assignedVariable));
    }
    return assignment ? parseAssignment() : parseExpression(OrPrecedence);
}

StatementParser::Node StatementParser::parseAssignment()
{
    const Token name = take();
    if (!m_names.isAssignable(name.text)) {
        return fail(
            name.start,
            translated("Die Variable %1 existiert nicht in der Zieltabelle").arg(name.text));
    }
    take();
    auto node = std::make_unique<NodeAssign>(m_names.idOf(name.text), name.text, name.start);
    return add(*node, parseExpression(OrPrecedence), false) ? std::move(node) : nullptr;
}

/// Operators from the given precedence on; those of one precedence bind from left to right, "**"
/// from right to left.
StatementParser::Node StatementParser::parseExpression(int precedence)
{
    if (++m_level > NodeBase::maxDepth)
        return fail(token().start, translated("Der Ausdruck ist zu tief verschachtelt"));
    Node left = parsePrefix();
    while (left) {
        const BinaryOperator *op = findBinary(token());
        if (!op || op->precedence < precedence)
            break;
        const Token sign = take();
        Node right = parseExpression(op->precedence + (op->precedence == PowerPrecedence ? 0 : 1));
        left = right ? joined(sign, std::move(left), std::move(right)) : nullptr;
    }
    --m_level;
    return left;
}

StatementParser::Node StatementParser::parsePrefix()
{
    const bool negation = isNot(token());
    if (!negation && !isSign(token()))
        return parsePrimary();
    const Token prefix = take();
    const NodeOperator op =
        prefix.text == QLatin1String("-") ? NodeOperator::Minus : NodeOperator::Plus;
    auto node = std::make_unique<NodeOperation>(negation ? NotArt : SignArt,
                                                negation ? NodeOperator::None : op, prefix.start);
    Node operand = parseExpression(negation ? NotPrecedence : SignPrecedence);
    return add(*node, std::move(operand), negation) ? std::move(node) : nullptr;
}

StatementParser::Node StatementParser::parsePrimary()
{
    const qsizetype start = token().start;
    switch (token().kind) {
    case TokenKind::Number:
        return std::make_unique<NodeNumber>(take().text, start);
    case TokenKind::Text:
        return std::make_unique<NodeText>(take().content(), start);
    case TokenKind::Name:
        return parseVariable(false);
    case TokenKind::SourcePrefix:
        return parseVariable(true);
    case TokenKind::Function:
        return parseFunction();
    case TokenKind::OpenBracket:
        return parseBrackets();
    default:
        return failExpected(QT_TRANSLATE_NOOP("VelkGeomCore", "ein Wert"));
    }
}

StatementParser::Node StatementParser::parseBrackets()
{
    take();
    Node inner = parseExpression(OrPrecedence);
    return inner && takeClosingBracket() ? std::move(inner) : nullptr;
}

StatementParser::Node StatementParser::parseVariable(bool prefixed)
{
    const qsizetype start = token().start;
    if (prefixed) {
        const qsizetype end = take().end();
        if (atEnd() || token().kind != TokenKind::Name || token().start != end)
            return failExpected(QT_TRANSLATE_NOOP("VelkGeomCore", "ein Variablenname"));
    }
    const QString name = take().text;
    if (!m_names.isReadable(name, prefixed))
        return fail(start, translated("Die Variable %1 ist nicht bekannt").arg(name));
    return std::make_unique<NodeVariable>(name, prefixed, start);
}

StatementParser::Node StatementParser::parseFunction()
{
    const Token name = take();
    const ExpressionFunction *function = findFunction(name.text);
    if (!function)
        return fail(name.start, translated("Die Funktion %1 ist nicht bekannt").arg(name.text));
    auto call = std::make_unique<NodeFunction>(*function, name.start);
    take();
    if (!parseArguments(*call) || !takeClosingBracket())
        return nullptr;
    const int count = int(call->children().size());
    const bool tooMany = function->maxArguments >= 0 && count > function->maxArguments;
    if (count < function->minArguments || tooMany) {
        return fail(name.start, translated("Falsche Anzahl von Argumenten für die Funktion %1")
                                    .arg(QLatin1String(function->name)));
    }
    return call;
}

/// All up to the closing bracket, which stays.
bool StatementParser::parseArguments(NodeFunction &call)
{
    if (token().kind == TokenKind::CloseBracket)
        return true;
    while (true) {
        const bool condition = call.function().isConditional() && call.children().empty();
        if (!add(call, parseExpression(OrPrecedence), condition))
            return false;
        if (token().kind != TokenKind::Comma)
            return true;
        take();
    }
}

StatementParser::Node StatementParser::joined(const Token &op, Node left, Node right)
{
    const BinaryOperator &binary = *findBinary(op);
    const bool logical = binary.precedence <= AndPrecedence;
    if (isChain(*left, binary.art))
        return add(*left, std::move(right), logical) ? std::move(left) : nullptr;
    auto node = std::make_unique<NodeOperation>(binary.art, binary.op, op.start);
    const bool added =
        add(*node, std::move(left), logical) && add(*node, std::move(right), logical);
    return added ? std::move(node) : nullptr;
}

/// False, with an error, if there is no child or one of the wrong type.
bool StatementParser::add(NodeBase &parent, Node child, bool logical)
{
    if (!child)
        return false;
    if ((child->getType() == LogicalType) != logical) {
        fail(child->position(), logical
                                    ? translated("Hier wird ein Vergleich erwartet, kein Wert")
                                    : translated("Hier wird ein Wert erwartet, kein Vergleich"));
        return false;
    }
    if (child->depth() >= NodeBase::maxDepth) {
        fail(child->position(), translated("Der Ausdruck ist zu tief verschachtelt"));
        return false;
    }
    parent.addChild(std::move(child));
    return true;
}

const Token &StatementParser::token() const
{
    return token(0);
}

const Token &StatementParser::token(qsizetype ahead) const
{
    const qsizetype index = m_next + ahead;
    return index < m_tokens.size() ? m_tokens.at(index) : m_end;
}

bool StatementParser::atEnd() const
{
    return m_next >= m_tokens.size();
}

Token StatementParser::take()
{
    return atEnd() ? m_end : m_tokens.at(m_next++);
}

bool StatementParser::takeClosingBracket()
{
    if (token().kind != TokenKind::CloseBracket) {
        failExpected(QT_TRANSLATE_NOOP("VelkGeomCore", "eine schließende Klammer"));
        return false;
    }
    take();
    return true;
}

StatementParser::Node StatementParser::fail(qsizetype position, const QString &message)
{
    if (m_error.isEmpty()) {
        m_error = placed(position, message);
        m_errorPosition = position;
    }
    return nullptr;
}

QString StatementParser::placed(qsizetype position, const QString &message) const
{
    const QStringView before = QStringView(m_text).left(position);
    const QString column = QString::number(position - before.lastIndexOf(u'\n'));
    if (!QStringView(m_text).trimmed().contains(u'\n'))
        return translated("Zeichen %1: %2").arg(column, message);
    return translated("Zeile %1, Zeichen %2: %3")
        .arg(QString::number(before.count(u'\n') + 1), column, message);
}

StatementParser::Node StatementParser::failExpected(const char *expected)
{
    if (token().kind == TokenKind::OpenText && !atEnd())
        return fail(token().start, translated("Dem Text fehlt das schließende Hochkomma"));
    return fail(
        token().start,
        translated("Erwartet wird %1, gefunden wurde %2").arg(translated(expected), found()));
}

QString StatementParser::found() const
{
    return atEnd() ? translated("das Ende") : QLatin1Char('"') + token().text + QLatin1Char('"');
}

} // namespace VKTab
