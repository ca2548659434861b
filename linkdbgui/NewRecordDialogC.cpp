#include "NewRecordDialogC.h"

#include "NewRecordDialogCPrivate.h"

#include <gui/application/PApplication.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

const QString cadColumn = QStringLiteral("CADSYSTEM");
const QString pdmColumn = QStringLiteral("PDMSYSTEM");
constexpr const char *fieldProperty = "field";

} // namespace

NewRecordDialogC::NewRecordDialogC()
    : d(new NewRecordDialogCPrivate(this))
{
    setObjectName(QStringLiteral("NewRecordDialog"));
    QWidget *const form = PApplication::createWidget(
        QStringLiteral("forms:linkdbgui/NewRecordDialog.ui"), this, false);
    if (form) {
        const QSize size = form->size();
        setWindowTitle(form->windowTitle());
        (new QVBoxLayout(this))->addWidget(form);
        d->grid = form->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
        d->makeScrollable(*form);
        if (auto *const buttons =
                form->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))) {
            connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
            connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
        }
        resize(size);
    }
    PApplication::setupWindow(this);
}

NewRecordDialogC::~NewRecordDialogC()
{
    PApplication::saveWindow(this);
    delete d;
}

void NewRecordDialogC::setSystemLists(const PStringList &cad, const PStringList &pdm)
{
    d->cadSystems = cad;
    d->pdmSystems = pdm;
    if (d->cadBox)
        d->cadBox->addItems(cad);
    if (d->pdmBox)
        d->pdmBox->addItems(pdm);
}

PString NewRecordDialogC::cadSystem() const
{
    return d->cadBox ? d->cadBox->currentText() : QString();
}

PString NewRecordDialogC::pdmSystem() const
{
    return d->pdmBox ? d->pdmBox->currentText() : QString();
}

void NewRecordDialogC::setFields(const PStringList &columns)
{
    if (!d->grid)
        return;
    QLineEdit *first = nullptr;
    for (const QString &column : columns) {
        if (column == cadColumn || column == pdmColumn)
            continue;
        QLineEdit *const edit = d->addLineEdit(column);
        first = first ? first : edit;
    }
    if (first)
        first->setFocus();
    d->cadBox = d->addSystemBox(cadColumn, d->cadSystems);
    d->pdmBox = d->addSystemBox(pdmColumn, d->pdmSystems);
    d->growToFields();
}

void NewRecordDialogC::setXVarset(const PString &xvarset)
{
    const auto edits = findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (edit->property(fieldProperty).toString() == u"XVARSET") {
            edit->setText(xvarset);
            return;
        }
    }
}

void NewRecordDialogC::setValues(const ValueMap &values)
{
    for (int row = 0; d->grid && row < d->grid->rowCount(); ++row) {
        const auto value = values.constFind(d->nameOf(row));
        if (value == values.cend())
            continue;
        if (auto *const edit = qobject_cast<QLineEdit *>(d->fieldOf(row))) {
            edit->setText(*value);
        } else if (auto *const box = qobject_cast<QComboBox *>(d->fieldOf(row))) {
            if (box->findText(*value) < 0)
                box->addItem(*value);
            box->setCurrentIndex(box->findText(*value));
        }
    }
}

ValueMap NewRecordDialogC::values() const
{
    ValueMap values;
    for (int row = 0; d->grid && row < d->grid->rowCount(); ++row) {
        if (auto *const edit = qobject_cast<QLineEdit *>(d->fieldOf(row)))
            values.insert(d->nameOf(row), edit->text());
        else if (auto *const box = qobject_cast<QComboBox *>(d->fieldOf(row)))
            values.insert(d->nameOf(row), box->currentText());
    }
    return values;
}
