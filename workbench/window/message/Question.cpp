#include "Question.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QPushButton>

namespace {

QString nameOf(Question::Answer answer)
{
    switch (answer) {
    case Question::Accept:
        return QStringLiteral("answerAccept");
    case Question::Refuse:
        return QStringLiteral("answerRefuse");
    case Question::Cancel:
        break;
    }
    return QStringLiteral("answerCancel");
}

QMessageBox::ButtonRole roleOf(Question::Answer answer)
{
    switch (answer) {
    case Question::Accept:
        return QMessageBox::AcceptRole;
    case Question::Refuse:
        return QMessageBox::DestructiveRole;
    case Question::Cancel:
        break;
    }
    return QMessageBox::RejectRole;
}

} // namespace

Question::Question(QWidget *parent)
    : m_box(parent)
{
    m_box.setObjectName("Question");
    m_box.setWindowTitle(tr("Frage"));
    m_box.setIcon(QMessageBox::Question);
    m_box.setTextFormat(Qt::PlainText);
}

void Question::setText(const QString &text)
{
    m_box.setText(text);
}

void Question::setDetails(const QString &text)
{
    m_box.setInformativeText(text);
}

void Question::setWarning()
{
    m_box.setIcon(QMessageBox::Warning);
}

void Question::addAnswer(Answer answer, const QString &text)
{
    QPushButton *button = m_box.addButton(text, roleOf(answer));
    button->setObjectName(nameOf(answer));
    if (m_answers.isEmpty())
        m_box.setDefaultButton(button);
    if (answer == Cancel)
        m_box.setEscapeButton(button);
    m_answers.append({answer, button});
}

/// Frames cut a title that is wider than what is in the window.
void Question::makeRoomForTitle()
{
    constexpr int FrameButtons = 160;
    const QString title =
        m_box.windowTitle() + QStringLiteral(" — ") + QGuiApplication::applicationDisplayName();
    auto *const grid = qobject_cast<QGridLayout *>(m_box.layout());
    if (grid)
        grid->addItem(
            new QSpacerItem(m_box.fontMetrics().horizontalAdvance(title) + FrameButtons, 0),
            grid->rowCount(), 0, 1, grid->columnCount());
}

Question::Answer Question::ask()
{
    makeRoomForTitle();
    m_box.exec();
    for (const auto &[answer, button] : std::as_const(m_answers)) {
        if (m_box.clickedButton() == button)
            return answer;
    }
    return Cancel;
}

void Question::tell(QWidget *parent, const QString &text, const QString &details,
                    QMessageBox::Icon icon)
{
    Question question(parent);
    question.m_box.setIcon(icon);
    question.m_box.setWindowTitle(tr("Hinweis"));
    question.setText(text);
    question.setDetails(details);
    question.addAnswer(Cancel, okText());
    static_cast<void>(question.ask());
}
