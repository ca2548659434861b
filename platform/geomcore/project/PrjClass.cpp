#include "PrjClass.h"

#include "CatalogPlaces.h"
#include "PrjFile.h"
#include "tableFileOf.h"

#include <core/text/PString.h>

#include <QDir>
#include <QLockFile>

PrjClass::PrjClass(bool keepRelative, bool create, bool lock)
    : m_keepRelative(keepRelative)
    , m_create(create)
    , m_lock(lock)
{
}

PrjClass::~PrjClass() = default;

int PrjClass::read(const QString &nativePath, int parts)
{
    clear();
    const bool address = PPathName(nativePath).isAddress();
    // Absolute, so that the table's path is right wherever it is asked for.
    m_path = !address && QDir::isRelativePath(nativePath) ? QDir().absoluteFilePath(nativePath)
                                                          : nativePath;
    if (address)
        return fail(
            m_path + QStringLiteral(": ") +
            PString::translate("das ist eine Adresse; nur Dateien werden gelesen", "VelkGeomCore"));
    const QString refusal = CatalogPlaces::instance().refusal(m_path);
    if (!refusal.isEmpty())
        return fail(m_path + QStringLiteral(": ") + refusal);
    if (!takeLock())
        return -1;
    PrjFile file;
    if (file.Load(nativePath, m_create) != 1)
        return fail(file.errorText());
    m_warnings = file.diagnostics();
    if (parts & ReadLexems) {
        for (const QString &name : file.lexemNames())
            m_lexems.insert(name, file.GetLexemValue(name));
    }
    if (parts & ReadVariables)
        m_variables = file.variables();
    if (parts & ReadTable) {
        m_tableReference = file.GetLexemValue(QStringLiteral("SACHM"));
        if (!m_keepRelative)
            m_tableReference = tableFile();
    }
    m_valid = true;
    return 1;
}

void PrjClass::clear()
{
    m_valid = false;
    m_errorText.clear();
    m_warnings.clear();
    m_lexems.clear();
    m_variables.clear();
    m_tableReference.clear();
}

int PrjClass::fail(const QString &error)
{
    m_errorText = error;
    return -1;
}

bool PrjClass::takeLock()
{
    m_lockFile.reset();
    if (!m_lock)
        return true;
    m_lockFile = std::make_unique<QLockFile>(m_path + QStringLiteral(".lock"));
    if (m_lockFile->tryLock(0))
        return true;
    qint64 process = 0;
    QString host;
    QString application;
    const bool known = m_lockFile->getLockInfo(&process, &host, &application);
    m_errorText = m_path + QStringLiteral(": ") +
                  (known ? PString::translate("gesperrt von %1 auf %2 (Prozess %3)", "VelkGeomCore")
                               .arg(application, host, QString::number(process))
                         : PString::translate("die Sperrdatei daneben lässt sich nicht schreiben",
                                              "VelkGeomCore"));
    m_lockFile.reset();
    return false;
}

QString PrjClass::tableFile() const
{
    return tableFileOf(m_path, m_tableReference);
}
