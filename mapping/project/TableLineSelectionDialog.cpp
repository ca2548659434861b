#include "TableLineSelectionDialog.h"

#include <core/text/PString.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>

#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QVBoxLayout>

TableLineSelectionDialog::TableLineSelectionDialog(const VKTab::ContentRef &table, QWidget *parent)
    : QDialog(parent)
    , tableView(new VkTableView(this))
    , content(table)
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                     Qt::Horizontal, this))
{
    setObjectName(QStringLiteral("TableLineSelectionDialog"));
    setWindowTitle(PString::translate("Tabellenzeile auswählen", "VelkLinkDbGui"));
    auto *const layout = new QVBoxLayout(this);
    tableView->setHeaderVisible(false);
    tableView->setShowTopoValues(false);
    layout->addWidget(tableView);
    tableView->setTable(content);
    tableView->connectTableClicked([this](const VKTab::Content &, int line, int) {
        buttonBox->button(QDialogButtonBox::Ok)->setEnabled(VKTab::LineId(line).isValid());
        return 0;
    });
    // A hit of the search selects a line without a click.
    connect(tableView->grid()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] {
                if (content.getSelection().isValid())
                    buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
            });
    tableView->setHeaderVisible(false);
    buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    connect(buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttonBox, SIGNAL(rejected()), this, SLOT(reject()));
    layout->addWidget(buttonBox);
    VelkApp()->setupWindow(this);
}

TableLineSelectionDialog::~TableLineSelectionDialog()
{
    VelkApp()->saveWindow(this);
}

void TableLineSelectionDialog::accept()
{
    if (content.getSelection().isValid())
        QDialog::accept();
}

VKTab::LineId TableLineSelectionDialog::selectedLine() const
{
    return content.getSelection();
}
