#pragma once

#include "PMessageSink.h"

#include <QList>
#include <QMutex>
#include <QStringList>

/// Answers questions from a prepared list and records all that is said: for tests and for runs that
/// nobody watches. Any thread.
class VELKCORE_EXPORT PScriptedMessageSink : public PMessageSink
{
public:
    struct Shown
    {
        QString text;
        PMsgDlgModes mode;
        PMsgReply reply;
    };

    /// The answers are given to questions in this order; after the last one to Cancel. Messages
    /// with Ok alone use up none.
    explicit PScriptedMessageSink(const QList<PMsgReply> &answers = {});
    ~PScriptedMessageSink() override;

    PMsgReply show(const QString &text, PMsgDlgModes mode) override;
    void logToWindow(const QString &text) override;

    void addAnswer(PMsgReply reply);
    [[nodiscard]] QList<Shown> shown() const;
    /// The texts of shown().
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QStringList logged() const;
    /// Answers that no question has used.
    [[nodiscard]] qsizetype answersLeft() const;
    void clear();

private:
    mutable QMutex m_mutex;
    QList<PMsgReply> m_answers;
    QList<Shown> m_shown;
    QStringList m_logged;
};
