#pragma once

#include <QCoreApplication>
#include <QMessageBox>

/// A question to the user whose answers say what they do. The buttons' object names are
/// "answerAccept", "answerRefuse" and "answerCancel".
class Question
{
    Q_DECLARE_TR_FUNCTIONS(Question)

public:
    enum Answer { Cancel, Accept, Refuse };

    explicit Question(QWidget *parent);

    /// Plain text; rich text is not recognised.
    void setText(const QString &text);
    void setDetails(const QString &text);
    void setWarning();
    /// The first one is the default; Escape and closing give Cancel.
    void addAnswer(Answer answer, const QString &text);
    [[nodiscard]] Answer ask();

    [[nodiscard]] static QString okText() { return tr("OK"); }
    [[nodiscard]] static QString yesText() { return tr("&Ja"); }
    [[nodiscard]] static QString noText() { return tr("&Nein"); }
    [[nodiscard]] static QString cancelText() { return tr("Abbrechen"); }

    /// Tells something that cannot wait in the log window. \a icon says how bad it is.
    static void tell(QWidget *parent, const QString &text, const QString &details = QString(),
                     QMessageBox::Icon icon = QMessageBox::Warning);

private:
    void makeRoomForTitle();

    QMessageBox m_box;
    QList<QPair<Answer, QPushButton *>> m_answers;
};
