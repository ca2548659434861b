#include "PConfigInst.h"

#include "PIniFile.h"

#include <core/text/PPathName.h>

#include <QDir>
#include <QFileInfo>
#include <QMutex>

class PConfigInstPrivate
{
public:
    PConfigInstPrivate(const PString &pathText, bool isReadOnly)
        : path(pathText)
        , readOnly(isReadOnly)
    {
        readFile();
    }

    /// False only for a file that is there and cannot be read.
    bool readFile();
    bool writeFile();

    const PPathName path;
    const bool readOnly;
    mutable QMutex mutex;
    PIniFile file;
    QString error;
};

bool PConfigInstPrivate::readFile()
{
    error.clear();
    if (!path.exists(false)) {
        file = PIniFile();
        return true;
    }
    if (!file.load(path.native())) {
        error = file.errorText();
        return false;
    }
    error = file.diagnosticTexts().join(u'\n');
    return true;
}

bool PConfigInstPrivate::writeFile()
{
    const QString native = path.native();
    QDir().mkpath(QFileInfo(native).absolutePath());
    if (file.save(native))
        return true;
    error = file.errorText();
    return false;
}

PConfigInst::PConfigInst(const PString &path, bool readOnly)
    : d(std::make_unique<PConfigInstPrivate>(path, readOnly))
{
}

PConfigInst::~PConfigInst() = default;

PConfigVal PConfigInst::getItemValue(const QString &key, const QString &section,
                                     const QString &defaultValue) const
{
    const QMutexLocker lock(&d->mutex);
    return PConfigVal(d->file.value(section, key, defaultValue));
}

bool PConfigInst::SetValue(const QString &key, const QString &section, const PConfigVal &value)
{
    const QMutexLocker lock(&d->mutex);
    if (d->readOnly) {
        d->error = d->path.native() + QStringLiteral(": ") +
                   PString::translate("ist nur zum Lesen da", "VelkCore");
        return false;
    }
    if (!d->readFile())
        return false;
    const QString &text = value.GetString();
    if (d->file.contains(section, key) && d->file.value(section, key) == text)
        return true;
    d->file.setValue(section, key, text);
    return d->writeFile();
}

PStringList PConfigInst::sections() const
{
    const QMutexLocker lock(&d->mutex);
    return d->file.sections();
}

PStringList PConfigInst::keys(const QString &section) const
{
    const QMutexLocker lock(&d->mutex);
    return d->file.keys(section);
}

PString PConfigInst::lastError() const
{
    const QMutexLocker lock(&d->mutex);
    return d->error;
}

PString PConfigInst::path() const
{
    return d->path.text();
}

bool PConfigInst::isReadOnly() const
{
    return d->readOnly;
}
