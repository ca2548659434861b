#include "CarriedWork.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/history/UndoHistory.h>

#include <memory>
#include <utility>

using VelkRelease::CarriedLines;

CarriedWork::CarriedWork(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    connect(document, &MappingDocument::opened, this, [this] {
        m_steps = m_document->steps().count();
        readAnew();
    });
    connect(document, &MappingDocument::closed, this, &CarriedWork::clear);
    connect(document, &MappingDocument::undoChanged, this, &CarriedWork::onUndoChanged);
}

CarriedWork::~CarriedWork() = default;

void CarriedWork::clear()
{
    ++m_job;
    m_hasCarried = false;
    m_lines = CarriedLines();
    Q_EMIT changed();
}

/// The same number of steps: one of them was taken back or again.
void CarriedWork::onUndoChanged()
{
    const int steps = m_document->steps().count();
    if (std::exchange(m_steps, steps) == steps && m_hasCarried)
        readAnew();
}

/// What cannot be read is told by those who show the history.
void CarriedWork::readAnew()
{
    const QString file = m_document->mappingFile();
    const QString release = m_document->release().getSourceDate();
    const int job = ++m_job;
    m_reader = std::jthread([this, file, release, job] {
        QString error;
        const auto steps = VelkRelease::readCarriedSteps(file, &error);
        const auto lines = std::make_shared<const CarriedLines>(
            steps ? *steps : std::vector<VelkRelease::CarriedStep>(), release);
        QMetaObject::invokeMethod(
            this,
            [this, job, lines] {
                if (job != m_job || (lines->isEmpty() && !m_hasCarried))
                    return;
                m_hasCarried = true;
                m_lines = *lines;
                Q_EMIT changed();
            },
            Qt::QueuedConnection);
    });
}
