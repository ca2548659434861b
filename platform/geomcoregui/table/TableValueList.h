#pragma once

#include <geomcore/value/VarId.h>

#include <QFrame>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QListWidget;
QT_END_NAMESPACE

class VkTableModel;

/// The values of a column with their numbers of rows, as a popup: what is ticked is the column's
/// quick filter. Space ticks, Escape closes, letters go to a value. Deletes itself when it closes.
class TableValueList : public QFrame
{
    Q_OBJECT

public:
    /// Values beyond are left out, those with the fewest rows first.
    static constexpr int MaxValues = 1000;

    TableValueList(VkTableModel *model, const VKTab::VarId &variable, QWidget *parent);
    ~TableValueList() override;

Q_SIGNALS:
    void filterChosen(const QString &text);

private:
    void fill(VkTableModel *model, const VKTab::VarId &variable);
    void choose();

    QListWidget *const m_list;
    QCheckBox *const m_others;
};
