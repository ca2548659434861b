#pragma once

#include <core/component/mzComObjectT.h>
#include <core/component/mzIDispatch.h>

#include <QJSValue>
#include <QPointer>

class ScriptEngine;

/// An object of a script in the hands of the component model. Cannot be called any more once the
/// engine is gone.
class ScriptDispatch : public mzComObjectT<mzIDispatch>
{
public:
    ScriptDispatch(ScriptEngine &engine, const QJSValue &value);

    int invokeByName(const mzComStringC &name, int kind, const mzComVariantArrayC &arguments,
                     mzComVariantC &result, std::optional<PScriptException> &exception) override;
    [[nodiscard]] quintptr getStickyThreadId() const override { return m_thread; }

    [[nodiscard]] bool isOf(const ScriptEngine &engine) const { return m_engine == &engine; }
    [[nodiscard]] QJSValue value() const { return m_value; }

private:
    ~ScriptDispatch() override;

    /// Gives 0 on success.
    int call(const QString &name, const mzComVariantArrayC &arguments, mzComVariantC &result,
             std::optional<PScriptException> &exception);

    QPointer<ScriptEngine> m_engine;
    QJSValue m_value;
    quintptr m_thread;
};
