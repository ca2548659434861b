#include "VarsetParserC.h"

#include "VarsetNames.h"
#include <geomcore/expression/Operand.h>
#include <geomcore/expression/StatementParser.h>
#include <geomcore/expression/Tokenizer.h>

#include <core/message/PMessage.h>
#include <geomcore/table/Line.h>

#include <optional>

namespace {

using Varset = QHash<QString, MapVarValueC>;

/// None if the line does not have that variable.
std::optional<QString> valueOf(const VKTab::Line &line, const QString &name)
{
    for (const VKTab::Var &var : line.getVarList()) {
        if (var.getName() == name)
            return line.getValue(var, VKTab::FormatPlain | VKTab::FormatUntranslated, {})
                .toString();
    }
    return std::nullopt;
}

std::optional<QString> valueOf(const QString &name, const Varset &varset, const VKTab::Line *line)
{
    auto ofLine = line ? valueOf(*line, name) : std::nullopt;
    if (ofLine)
        return ofLine;
    const auto known = varset.find(name);
    return known == varset.end() ? std::nullopt : std::optional(known->getValue().toString());
}

QString literal(const QString &value)
{
    const QString number = value.trimmed();
    const bool sign = number.startsWith(QLatin1Char('-')) || number.startsWith(QLatin1Char('+'));
    if (VKTab::isNumberLiteral(QStringView(number).mid(sign ? 1 : 0)))
        return sign ? QLatin1Char('(') + number + QLatin1Char(')') : number;
    QString text = value;
    text.replace(QLatin1String("'"), QLatin1String("''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

VarsetParserC::VarsetParserC(const Varset &source, const Varset &target)
    : m_names(std::make_unique<VarsetNames>(source, target))
{
}

VarsetParserC::~VarsetParserC() = default;

VKTab::NodeBase *VarsetParserC::parseStatement(const QString &text, const QString &variableName,
                                               bool anyStatement)
{
    VKTab::ParsedStatement parsed = parse(text, variableName, anyStatement);
    if (parsed.node)
        return parsed.node.release();
    PMessage::Show(QLatin1String("error: ") + parsed.error, PMsgDlgMode::Error);
    const bool empty = QStringView(text).trimmed().isEmpty();
    return empty ? nullptr : new VKTab::NodeInvalid(parsed.errorPosition);
}

VKTab::ParsedStatement VarsetParserC::parse(const QString &text, const QString &variableName,
                                            bool anyStatement)
{
    return VKTab::StatementParser(text, *m_names)
        .parse(anyStatement ? std::nullopt : std::optional(variableName));
}

bool VarsetParserC::isReadable(const QString &name, bool prefixed) const
{
    return m_names->isReadable(name, prefixed);
}

bool VarsetParserC::isAssignable(const QString &name) const
{
    return m_names->isAssignable(name);
}

QString VarsetParserC::getVarName(const VKTab::VarId &id) const
{
    return m_names->nameOf(id);
}

QString VarsetParserC::resolveSourceVars(const QString &text, const Varset &varset,
                                         const VKTab::Line *line)
{
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(text);
    QString result;
    qsizetype done = 0;
    for (qsizetype i = 0; i + 1 < tokens.size(); ++i) {
        const VKTab::Token &prefix = tokens[i];
        const VKTab::Token &name = tokens[i + 1];
        if (prefix.kind != VKTab::TokenKind::SourcePrefix || name.kind != VKTab::TokenKind::Name ||
            name.start != prefix.end())
            continue;
        const auto value = valueOf(name.text, varset, line);
        if (!value)
            continue;
        result += QStringView(text).mid(done, prefix.start - done);
        result += literal(*value).leftJustified(name.end() - prefix.start);
        done = name.end();
    }
    result += QStringView(text).mid(done);
    return result;
}
