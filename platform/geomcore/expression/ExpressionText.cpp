#include "ExpressionText.h"

#include <core/message/PMessage.h>
#include <core/text/PString.h>

namespace VKTab {

namespace {

QString useError(ExpressionUse use)
{
    if (use == ExpressionUse::Condition)
        return PString::translate("Eine Bedingung muss ein Vergleich sein", "VelkGeomCore");
    return PString::translate("Eine Formel muss einer Variablen einen Wert zuweisen",
                              "VelkGeomCore");
}

} // namespace

ParsedStatement parseFor(ExpressionUse use, const QString &text, StatementNames &names)
{
    ParsedStatement parsed = StatementParser(text, names).parse();
    const int wanted = use == ExpressionUse::Condition ? LogicalType : AssignmentType;
    if (parsed.node && parsed.node->getType() != wanted) {
        parsed.node.reset();
        parsed.error = useError(use);
    }
    return parsed;
}

std::unique_ptr<NodeBase> parseOrReport(ExpressionUse use, const QString &text,
                                        StatementNames &names)
{
    ParsedStatement parsed = parseFor(use, text, names);
    if (!parsed.node)
        PMessage::Show(QLatin1String("error: ") + parsed.error, PMsgDlgMode::Error);
    return std::move(parsed.node);
}

ExpressionText::ExpressionText(ExpressionUse use, const QString &text)
    : m_text(text)
    , m_use(use)
{
}

ExpressionText::ExpressionText(const QString &text, const NodeBase &statement)
    : m_text(text)
{
    std::call_once(m_once, [&] { m_program = std::make_shared<const Program>(statement); });
}

ExpressionText::~ExpressionText() = default;

std::shared_ptr<const Program> ExpressionText::program() const
{
    parse();
    return m_program;
}

QString ExpressionText::error() const
{
    parse();
    return m_error;
}

void ExpressionText::parse() const
{
    std::call_once(m_once, [this] {
        StatementNames anyName;
        const ParsedStatement parsed = parseFor(m_use, m_text, anyName);
        if (parsed.node) {
            m_program = std::make_shared<const Program>(*parsed.node);
            return;
        }
        m_error = parsed.error;
        PMessage::LogToWindow(
            QString::fromLatin1("%1 %2 %3")
                .arg(m_text, PString::translate("enthält Fehler!", "VelkGeomCore"), m_error));
    });
}

} // namespace VKTab
