#pragma once

#include <geomcore/mapper/LineCandidatesC.h>

#include <QAbstractTableModel>
#include <QList>

/// Old and new value of every variable of a pair of lines, one a row: different ones first, then
/// equal ones, each in the order of the new table. Variables without a value on either side are
/// left out.
class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Variable, OldValue, NewValue, ColumnCount };
    /// QList<QPair<int, int>>: begins and lengths of what differs in the cell's text.
    static constexpr int MarksRole = Qt::UserRole;
    /// ComparedVariableC::Outcome as int.
    static constexpr int OutcomeRole = Qt::UserRole + 1;

    explicit DifferenceModel(QObject *parent = nullptr);

    void setVariables(const QList<ComparedVariableC> &variables);
    [[nodiscard]] int differentCount() const { return m_different; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    [[nodiscard]] static QString toolTip(const ComparedVariableC &variable);

    QList<ComparedVariableC> m_variables;
    int m_different = 0;
};
