#pragma once

#include <QAbstractTableModel>
#include <QHash>

class MappingDocument;

/// The steps of a document as a table, the newest first, those that were taken back included.
class StepListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        State,
        Time,
        Author,
        What,
        Lines,
        ColumnCount,
    };

    /// \a document must live as long; the table is made anew some time after its steps changed.
    explicit StepListModel(MappingDocument *document, QObject *parent = nullptr);

    /// The number of a step among those of the document.
    [[nodiscard]] int stepAt(int row) const { return m_count - 1 - row; }
    [[nodiscard]] int rowOf(int step) const { return m_count - 1 - step; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

    /// "3, 5, 8–12", or how many if they are many or of several projects.
    [[nodiscard]] static QString linesText(const MappingDocument &document, int step);

public Q_SLOTS:
    void refresh();

private:
    [[nodiscard]] QString text(int step, int column) const;

    MappingDocument *const m_document;
    int m_count = 0;
    mutable QHash<int, QString> m_lines; ///< what was asked for
};
