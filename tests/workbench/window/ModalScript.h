#pragma once

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

/// Plays the user in front of modal dialogs: each dialog that opens gets the next answer.
class ModalScript
{
public:
    ModalScript()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start(5);
    }

    void then(const std::function<void(QWidget *)> &answer) { m_answers.append(answer); }
    /// Clicks the button of that object name.
    void thenClick(const QString &button)
    {
        then([this, button](QWidget *dialog) {
            note(dialog);
            auto *found = dialog->findChild<QPushButton *>(button);
            if (!found)
                return dialog->close(), void();
            QTest::mouseClick(found, Qt::LeftButton);
        });
    }
    [[nodiscard]] bool isDone() const { return m_answers.isEmpty(); }
    /// Object names of the dialogs that were answered, and what message boxes said.
    QStringList seen;
    QStringList texts;

    void note(const QWidget *dialog)
    {
        seen << dialog->objectName();
        texts << dialog->property("text").toString();
    }

private:
    void look()
    {
        QWidget *const dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == m_last || m_answers.isEmpty())
            return;
        m_last = dialog;
        const auto answer = m_answers.takeFirst();
        answer(dialog);
    }

    QTimer m_timer;
    QPointer<QWidget> m_last;
    QList<std::function<void(QWidget *)>> m_answers;
};
