#pragma once

#include <QAbstractTableModel>

#include <functional>
#include <vector>

namespace VelkRelease {
class DifferencePatterns;
}

/// The difference patterns that have open lines, one a row, behind them those of lines without a
/// successor. The order is that of the lines when
/// the patterns were made and stays until they are made anew, so that no row moves away under the
/// hand; rows whose last line is decided go, and come back to their place if that is undone.
class PatternModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Changes, Lines, Projects, Probability, Exceptions, ColumnCount };
    /// The raw value of a cell.
    static constexpr int ValueRole = Qt::UserRole;

    explicit PatternModel(QObject *parent = nullptr);

    /// Other patterns; they stay where they are while the model shows them. Null: none.
    void setPatterns(const VelkRelease::DifferencePatterns *patterns);
    /// The same patterns with other lines.
    void update();

    /// -1 for a row out of range.
    [[nodiscard]] int patternAt(int row) const;
    [[nodiscard]] int rowOf(int pattern) const;
    /// Of all rows.
    [[nodiscard]] int lineCount() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// The words are in another language now.
    void retranslate();

private:
    struct Row
    {
        int pattern;
        int lines;
        int projects;
        double probability;
        int exceptions;

        friend bool operator==(const Row &, const Row &) = default;
    };
    void insertRow(int pattern, int behind);
    [[nodiscard]] std::vector<int> rankedPatterns() const;
    [[nodiscard]] Row rowFor(int pattern) const;
    [[nodiscard]] QString text(const Row &row, int column) const;
    [[nodiscard]] QString toolTip(const Row &row) const;
    [[nodiscard]] static QVariant value(const Row &row, int column);

    const VelkRelease::DifferencePatterns *m_patterns = nullptr;
    std::vector<Row> m_rows;
    std::vector<int> m_order; ///< all patterns that had a row, as the rows stand
};
