#pragma once

#include <script/engine/ScriptEngine.h>
#include <script/objects/prxReleaseMappingC.h>
#include <script/objects/prxTextWriterC.h>

#include <optional>

/// What became of a script.
struct ScriptOutcome
{
    enum State {
        Done,       ///< to its end, or by exit()
        Failed,     ///< it, or a limit ended it
        Stopped,    ///< by hand
        Unreadable, ///< its file
        NotWritten, ///< it came to its end, but the output could not be written
    };
    State state = Done;
    int status = 0; ///< of exit()
    mzComVariantC value;
    PScriptException error; ///< of all but Done
};

/// An engine with what scripts have in every program: `args`, `velk`, `mapping`, `output`; the
/// last two are null unless they are set. A script's variables stay for the next one.
class ScriptSession
{
public:
    /// Starts the component server, so that all components can be made.
    ScriptSession();
    ~ScriptSession();
    ScriptSession(const ScriptSession &) = delete;
    ScriptSession &operator=(const ScriptSession &) = delete;

    [[nodiscard]] ScriptEngine &engine() { return m_engine; }
    void setArguments(const QStringList &arguments);
    void setMapping(const ReleaseMappingC &release, const ScriptRoots &roots);
    void setNoMapping();
    /// The file that the script may write. It takes its place when the next run is done. False with
    /// \a error if it cannot be written.
    [[nodiscard]] bool setOutput(const QString &path, QString *error);

    [[nodiscard]] ScriptOutcome run(const QString &program, const QString &name);
    /// A text file in UTF-8. A first line that begins with "#!" is left out.
    [[nodiscard]] ScriptOutcome runFile(const QString &path);

private:
    ScriptEngine m_engine;
    ProxyPtrT<prxTextWriterC> m_output;
};
