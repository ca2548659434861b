#include "PStringMessageImpl.h"

#include "PMessage.h"

namespace {

thread_local PStringMessageImpl *t_innermost = nullptr;

} // namespace

PStringMessageImpl::PStringMessageImpl(PMsgReply reply, bool log, bool forward)
    : m_reply(reply)
    , m_log(log)
    , m_forward(forward)
    , m_outer(t_innermost)
{
    t_innermost = this;
}

PStringMessageImpl::~PStringMessageImpl()
{
    deactivate();
}

void PStringMessageImpl::deactivate()
{
    if (!m_active)
        return;
    m_active = false;
    PStringMessageImpl **link = &t_innermost;
    while (*link && *link != this)
        link = &(*link)->m_outer;
    Q_ASSERT_X(*link, "PStringMessageImpl", "deactivated on another thread");
    if (*link)
        *link = m_outer;
}

QString PStringMessageImpl::buffer() const
{
    return m_texts.join(u'\n');
}

PStringMessageImpl *PStringMessageImpl::innermost()
{
    return t_innermost;
}

PMsgReply PStringMessageImpl::take(const QString &text, PMsgDlgModes mode)
{
    const bool question = PMessage::isQuestion(mode);
    m_texts.append(text);
    m_messages[PMessage::severityName(mode)].append(text);
    if (m_log)
        PMessage::LogToWindow(text);
    if (m_forward)
        PMessage::showOutside(m_outer, text, PMsgDlgModes::fromInt(int(mode) & ~PMsgDlgButtonBits));
    return question ? m_reply : PMsgReply::Ok;
}
