#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

class MappingDifference;
class PJsonValue;

/// Appends to the journal of a mapping file. A record is one row with its checksum and is handed
/// to the system as a whole, so that what a killed program leaves can be read up to the last row.
/// Within a second it is on the disk.
class JournalFile : public QObject
{
    Q_OBJECT
public:
    explicit JournalFile(QObject *parent = nullptr);
    ~JournalFile() override;

    /// Opens the file for appending, made if it is missing; a last row without an end gets one.
    /// False with errorText().
    [[nodiscard]] bool open(const QString &path);
    void close();
    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    [[nodiscard]] QString path() const { return m_path; }
    /// What is open stands under its name; not so when its folder was deleted meanwhile.
    [[nodiscard]] bool isInPlace() const;
    [[nodiscard]] QString errorText() const { return m_errorText; }

    void append(const PJsonValue &record);
    void append(const MappingDifference &difference, int step);
    /// Whole rows, with checksum and end.
    void appendRows(const QByteArray &rows);
    /// Hands everything to the system. False if it did not take it: it stays here and is tried
    /// again with the next record.
    bool flush();
    /// flush(), and onto the disk soon: another thread does that. failed() if it cannot.
    void sync();

Q_SIGNALS:
    /// Writing failed for the first time, or for the first time again.
    void failed(const QString &errorText);

private:
    [[nodiscard]] bool endsWithLineFeed();
    bool write();
    void tellFailure(const QString &errorText);

    QString m_path;
    QFile m_file;
    QByteArray m_pending;
    qint64 m_goodSize = 0; ///< where the last whole row ends
    bool m_failing = false;
    QString m_errorText;
    QElapsedTimer m_sinceFlush;
    QTimer m_syncTimer;
    QThreadPool m_disk; ///< of one thread; waits for it in the end
};
