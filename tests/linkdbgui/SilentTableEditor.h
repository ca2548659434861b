#pragma once

#include "TableEditorFixture.h"

#include <core/message/PScriptedMessageSink.h>

/// A table editor with three lines in each table, none of whose actions may show a message.
struct SilentTableEditor
{
    void begin()
    {
        m_messages = std::make_shared<PScriptedMessageSink>();
        m_scope = std::make_unique<PMessageSinkScope>(m_messages);
        f = std::make_unique<TableEditorFixture>();
        f->writeThreeLines();
    }
    void end()
    {
        f.reset();
        m_scope.reset();
        QCOMPARE(m_messages->texts(), QStringList());
    }
    [[nodiscard]] QString entries() const { return entriesOf(f->current()); }

    std::unique_ptr<TableEditorFixture> f;
    std::shared_ptr<PScriptedMessageSink> m_messages;
    std::unique_ptr<PMessageSinkScope> m_scope;
};
