#pragma once

#include <release/history/CarriedHistory.h>

#include <QObject>

#include <thread>

class MappingDocument;

/// Which lines of the open document have what was taken over from a former mapping. The journals
/// are read on another thread when a document is opened, and again when a step is taken back or
/// again. GUI thread.
class CarriedWork : public QObject
{
    Q_OBJECT

public:
    /// \a document must live as long.
    explicit CarriedWork(MappingDocument *document, QObject *parent = nullptr);
    ~CarriedWork() override;

    [[nodiscard]] const VelkRelease::CarriedLines &lines() const { return m_lines; }
    /// After the journal got more.
    void readAnew();

Q_SIGNALS:
    void changed();

private:
    void clear();
    void onUndoChanged();

    MappingDocument *const m_document;
    VelkRelease::CarriedLines m_lines;
    int m_job = 0;
    int m_steps = 0;           ///< of the document, when its list changed last
    bool m_hasCarried = false; ///< it has, or had, lines that were taken over
    std::jthread m_reader;
};
