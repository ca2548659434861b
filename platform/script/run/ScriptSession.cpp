#include "ScriptSession.h"

#include <core/access/openRegularFile.h>
#include <core/component/mzComServerC.h>
#include <script/objects/prxVelkC.h>
#include <script/text/scriptText.h>

#include <QFile>
#include <QStringDecoder>

namespace {

constexpr qint64 largestFile = 16 << 20;

/// Nothing with \a problem if it cannot be read.
std::optional<QString> readProgram(const QString &path, QString &problem)
{
    QFile file(path);
    if (!openRegularFile(file, problem))
        return std::nullopt;
    if (file.size() > largestFile) {
        problem = QStringLiteral("it is no script: it has more than 16 MB");
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        problem = file.errorString();
        return std::nullopt;
    }
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString program = utf8(bytes);
    if (utf8.hasError()) {
        problem = scriptText("kein Text in UTF-8");
        return std::nullopt;
    }
    if (program.startsWith(
            QLatin1StringView("#!"))) // the line stays, for the numbers of the others
        program.insert(0, QLatin1StringView("//"));
    return program;
}

} // namespace

ScriptSession::ScriptSession()
{
    mzComServerC::instance().start();
    m_engine.setGlobal(QStringLiteral("velk"), static_cast<const proxyObjectC *>(new prxVelkC));
    m_engine.setGlobal(QStringLiteral("output"), mzComVariantC());
    setArguments({});
    setNoMapping();
}

ScriptSession::~ScriptSession() = default;

void ScriptSession::setArguments(const QStringList &arguments)
{
    m_engine.setGlobal(QStringLiteral("args"), arguments);
}

void ScriptSession::setMapping(const ReleaseMappingC &release, const ScriptRoots &roots)
{
    m_engine.setGlobal(QStringLiteral("mapping"),
                       static_cast<const proxyObjectC *>(new prxReleaseMappingC(release, roots)));
}

void ScriptSession::setNoMapping()
{
    m_engine.setGlobal(QStringLiteral("mapping"), mzComVariantC());
}

bool ScriptSession::setOutput(const QString &path, QString *error)
{
    m_output = new prxTextWriterC;
    if (!m_output->open(path, error)) {
        m_output = nullptr;
        return false;
    }
    m_engine.setGlobal(QStringLiteral("output"), m_output.get());
    return true;
}

ScriptOutcome ScriptSession::run(const QString &program, const QString &name)
{
    ScriptOutcome outcome;
    std::optional<PScriptException> exception;
    outcome.value = m_engine.run(program, name, exception);
    if (exception) {
        outcome.state = m_engine.stopped() == ScriptStop::ByHand ? ScriptOutcome::Stopped
                                                                 : ScriptOutcome::Failed;
        outcome.error = *exception;
        return outcome;
    }
    outcome.status = m_engine.exitStatus();
    QString cause;
    if (m_output && !m_output->commit(&cause)) {
        outcome.state = ScriptOutcome::NotWritten;
        outcome.error = {scriptText("Die Ausgabe lässt sich nicht schreiben: %1").arg(cause),
                         m_output->path(), 0};
    }
    m_output = nullptr;
    return outcome;
}

ScriptOutcome ScriptSession::runFile(const QString &path)
{
    QString problem;
    if (const auto program = readProgram(path, problem))
        return run(*program, path);
    return {.state = ScriptOutcome::Unreadable,
            .error = {scriptText("Das Skript lässt sich nicht lesen: %1").arg(problem), path, 0}};
}
