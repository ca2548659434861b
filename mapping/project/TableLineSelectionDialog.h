#pragma once

#include <geomcore/table/ContentRef.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QDialogButtonBox;
QT_END_NAMESPACE

class VkTableView;

/// Lets the user point at one line of a table. The selection is the table's own, so it changes even
/// if the user cancels.
class TableLineSelectionDialog : public QDialog
{
    Q_OBJECT

public:
    TableLineSelectionDialog(const VKTab::ContentRef &table, QWidget *parent);
    ~TableLineSelectionDialog() override;

    /// Closes only if a line is selected.
    void accept() override;
    [[nodiscard]] VKTab::LineId selectedLine() const;

private:
    VkTableView *tableView;
    VKTab::ContentRef content;
    QDialogButtonBox *buttonBox;
};
