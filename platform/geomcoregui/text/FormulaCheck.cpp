#include "FormulaCheck.h"

#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/expression/StatementParser.h>
#include <geomcore/expression/Tokenizer.h>
#include <gui/views/Inks.h>

#include <gui/views/Inks.h>
#include <QEvent>

#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

#include <utility>

namespace {

constexpr int pauseInMilliseconds = 400;

} // namespace

FormulaCheck::FormulaCheck(QPlainTextEdit *edit)
    : QObject(edit)
    , m_edit(edit)
    , m_strip(new QLabel(edit))
{
    m_strip->setObjectName(QStringLiteral("formulaError"));
    m_strip->setTextFormat(Qt::PlainText);
    m_strip->setWordWrap(true);
    m_strip->setMargin(3);
    m_strip->setAutoFillBackground(true);
    m_strip->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_strip->hide();
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseInMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &FormulaCheck::check);
    connect(edit, &QPlainTextEdit::textChanged, this, &FormulaCheck::onTextChanged);
    connect(edit, &QPlainTextEdit::cursorPositionChanged, this, &FormulaCheck::placeStrip);
    edit->viewport()->installEventFilter(this);
}

FormulaCheck::~FormulaCheck() = default;

void FormulaCheck::setStatement(const QHash<QString, MapVarValueC> &source,
                                const QHash<QString, MapVarValueC> &target,
                                const QString &variableName)
{
    m_parser = std::make_unique<VarsetParserC>(source, target);
    m_variableName = variableName;
    check();
}

void FormulaCheck::release()
{
    m_edit->setExtraSelections({});
    m_edit->setAccessibleDescription({});
    delete m_strip;
}

QString FormulaCheck::errorAt(qsizetype position) const
{
    return position >= m_start && position < m_end ? m_error : QString();
}

void FormulaCheck::onTextChanged()
{
    const QString text = m_edit->toPlainText();
    if (std::exchange(m_text, text) == text)
        return; // colours only
    m_start = m_end = 0;
    m_edit->setExtraSelections({});
    if (text.trimmed().isEmpty())
        check();
    else
        m_pause.start();
}

void FormulaCheck::check()
{
    const QString text = m_edit->toPlainText();
    m_error.clear();
    m_start = m_end = 0;
    if (m_parser && !text.trimmed().isEmpty()) {
        const VKTab::ParsedStatement parsed =
            m_parser->parse(text, m_variableName, m_variableName.isEmpty());
        m_error = parsed.node ? QString() : parsed.error;
        if (!m_error.isEmpty())
            mark(parsed.errorPosition);
    }
    if (m_error.isEmpty())
        m_edit->setExtraSelections({});
    m_edit->setAccessibleDescription(m_error);
    m_strip->setText(m_error);
    m_strip->setVisible(!m_error.isEmpty());
    placeStrip();
}

/// Underlines the token at that place; what is missing at the end, the last token.
void FormulaCheck::mark(qsizetype position)
{
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(m_edit->toPlainText());
    if (tokens.isEmpty())
        return;
    VKTab::Token marked = tokens.last();
    for (const VKTab::Token &token : tokens) {
        if (token.end() > position) {
            marked = token;
            break;
        }
    }
    m_start = marked.start;
    m_end = marked.end();
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(m_edit->document());
    selection.cursor.setPosition(int(m_start));
    selection.cursor.setPosition(int(m_end), QTextCursor::KeepAnchor);
    selection.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    selection.format.setUnderlineColor(Inks::ink(Inks::Ink::Bad, m_edit->palette()));
    m_edit->setExtraSelections({selection});
}

void FormulaCheck::placeStrip()
{
    if (m_strip->isHidden())
        return;
    QPalette colours = m_edit->palette();
    colours.setColor(QPalette::Window, colours.color(QPalette::ToolTipBase));
    colours.setColor(QPalette::WindowText, colours.color(QPalette::ToolTipText));
    m_strip->setPalette(colours);
    const QRect area = m_edit->viewport()->geometry();
    QRect strip(area.left(), 0, area.width(), m_strip->heightForWidth(area.width()));
    strip.moveBottom(area.bottom());
    const QRect cursor = m_edit->cursorRect().translated(area.topLeft());
    if (strip.intersects(cursor) && cursor.top() - area.top() > strip.height())
        strip.moveTop(area.top());
    m_strip->setGeometry(strip);
}

bool FormulaCheck::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::PaletteChange)
        QMetaObject::invokeMethod(this, &FormulaCheck::placeStrip, Qt::QueuedConnection);
    return QObject::eventFilter(object, event);
}
