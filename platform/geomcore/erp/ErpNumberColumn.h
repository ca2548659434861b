#pragma once

#include "ErpNumberSourceI.h"

#include <geomcore/table/ContentRef.h>

#include <QObject>

#include <memory>

class ErpNumberLayer;
class ErpNumberWishes;

QT_BEGIN_NAMESPACE
class QThreadPool;
QT_END_NAMESPACE

/// Gives a table the column of its lines' ERP numbers and fills it in the background: what is
/// looked at is read on a thread of its own, then the table's views follow. One table at a time.
/// Lives on the table's thread.
class VELKGEOMCORE_EXPORT ErpNumberColumn : public QObject
{
    Q_OBJECT

public:
    explicit ErpNumberColumn(const std::shared_ptr<ErpNumberSourceI> &source,
                             QObject *parent = nullptr);
    /// Waits for what is being read.
    ~ErpNumberColumn() override;

    /// The table of a project by its catalog path; a former one keeps its column as it is. Nothing
    /// happens for a table that is not valid.
    void attach(const VKTab::Content &table, const QString &catalogPath);
    /// Reads anew what is looked at.
    void refresh();
    [[nodiscard]] bool isReading() const { return m_isReading; }

Q_SIGNALS:
    /// Once for each table: why numbers could not be read. Their cells stay empty until refresh().
    void failed(const QString &reason);

private:
    struct Outcome
    {
        QList<VKTab::LineId> lines;
        std::optional<ErpNumberSourceI::Numbers> numbers;
        QString error;
    };

    void leave();
    void read();
    void enter(const std::shared_ptr<ErpNumberWishes> &wishes, const Outcome &outcome);

    const std::shared_ptr<ErpNumberSourceI> m_source;
    const std::unique_ptr<QThreadPool> m_pool;
    VKTab::ContentRef m_table;
    QString m_path;
    std::shared_ptr<ErpNumberWishes> m_wishes; ///< of the table
    bool m_isReading = false;
    bool m_hasFailed = false;
};
