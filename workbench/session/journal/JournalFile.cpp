#include "JournalFile.h"

#include "JournalText.h"

#include <core/json/PJsonValue.h>
#include <release/history/JournalRow.h>
#include <workbench/session/file/OwnFile.h>

#include <utility>

namespace {

constexpr qsizetype MaxPending = 1 << 16;
constexpr qint64 MaxWait = 250; // ms, while records keep coming
constexpr int SyncAfter = 1000; // ms

} // namespace

JournalFile::JournalFile(QObject *parent)
    : QObject(parent)
{
    m_disk.setMaxThreadCount(1);
    m_syncTimer.setSingleShot(true);
    m_syncTimer.setInterval(SyncAfter);
    connect(&m_syncTimer, &QTimer::timeout, this, &JournalFile::sync);
}

JournalFile::~JournalFile()
{
    close();
}

bool JournalFile::open(const QString &path)
{
    close();
    m_path = path;
    if (!OwnFile::open(m_file, path,
                       QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered,
                       &m_errorText))
        return false;
    m_goodSize = m_file.size();
    // Half a row of a killed program must not take the next one along.
    if (m_goodSize > 0 && !endsWithLineFeed())
        m_pending = QByteArrayLiteral("\n");
    m_failing = false;
    m_errorText.clear();
    m_sinceFlush.start();
    return true;
}

bool JournalFile::endsWithLineFeed()
{
    return m_file.seek(m_goodSize - 1) && m_file.read(1) == "\n";
}

bool JournalFile::isInPlace() const
{
    return isOpen() && OwnFile::isName(m_path, m_file);
}

void JournalFile::close()
{
    m_syncTimer.stop();
    if (m_file.isOpen()) {
        sync();
        m_file.close();
    }
    m_pending.clear();
}

void JournalFile::append(const PJsonValue &record)
{
    appendRows(VelkRelease::JournalRow::frame(record.toByteArray(true)));
}

void JournalFile::append(const MappingDifference &difference, int step)
{
    appendRows(VelkRelease::JournalRow::frame(JournalText::writeChange(difference, step)));
}

void JournalFile::appendRows(const QByteArray &rows)
{
    if (!isOpen())
        return;
    m_pending += rows;
    if (m_pending.size() >= MaxPending || m_sinceFlush.elapsed() >= MaxWait)
        flush();
    if (!m_syncTimer.isActive())
        m_syncTimer.start();
}

bool JournalFile::flush()
{
    m_sinceFlush.start();
    if (!isOpen() || m_pending.isEmpty())
        return isOpen();
    if (write()) {
        m_failing = false;
        return true;
    }
    // Half a row must not stay before the rows that come later.
    if (m_file.resize(m_goodSize))
        m_file.seek(m_goodSize);
    tellFailure(m_errorText);
    return false;
}

bool JournalFile::write()
{
    if (m_file.size() != m_goodSize && !m_file.resize(m_goodSize)) {
        m_errorText = m_file.errorString();
        return false;
    }
    if (!OwnFile::append(m_file, m_pending, &m_errorText))
        return false;
    m_goodSize += m_pending.size();
    m_pending.clear();
    return true;
}

void JournalFile::sync()
{
    if (!flush())
        return;
    // The file may be closed before the disk has answered.
    const int file = OwnFile::duplicate(m_file);
    m_disk.start([this, file] {
        QString error;
        if (!OwnFile::syncAndClose(file, &error))
            QMetaObject::invokeMethod(
                this, [this, error] { tellFailure(error); }, Qt::QueuedConnection);
    });
}

void JournalFile::tellFailure(const QString &errorText)
{
    m_errorText = errorText;
    if (!std::exchange(m_failing, true))
        Q_EMIT failed(errorText);
}
