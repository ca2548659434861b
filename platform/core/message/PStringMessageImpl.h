#pragma once

#include "PMsgDlgMode.h"

#include <core/VelkCoreGlobal.h>

#include <QHash>
#include <QString>
#include <QStringList>

/// Collects the messages of its thread instead of showing them, from construction to deactivate()
/// or destruction. Of nested ones the innermost active one collects. Used on one thread.
class VELKCORE_EXPORT PStringMessageImpl
{
public:
    /// The reply is what any question gets meanwhile. With log every message also goes to the log
    /// window, with forward it is also shown, by the next outer one or the sink; a question then as
    /// an information, since it has its answer.
    PStringMessageImpl(PMsgReply reply, bool log, bool forward = false);
    ~PStringMessageImpl();
    PStringMessageImpl(const PStringMessageImpl &) = delete;
    PStringMessageImpl &operator=(const PStringMessageImpl &) = delete;

    /// Ends the collecting; what was collected stays.
    void deactivate();
    [[nodiscard]] bool isActive() const { return m_active; }

    /// The texts by severity name: "error", "warning", "question", "info".
    [[nodiscard]] QHash<QString, QStringList> getMessages() const { return m_messages; }
    /// All texts in the order of their coming, joined by line feeds.
    [[nodiscard]] QString buffer() const;

private:
    friend class PMessage;

    PMsgReply take(const QString &text, PMsgDlgModes mode);
    [[nodiscard]] static PStringMessageImpl *innermost();

    const PMsgReply m_reply;
    const bool m_log;
    const bool m_forward;
    bool m_active = true;
    PStringMessageImpl *m_outer;
    QHash<QString, QStringList> m_messages;
    QStringList m_texts;
};
