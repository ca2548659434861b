#include "dlgSelect.h"

#include "dlgSelectPrivate.h"
#include "SelectWidget.h"

#include <core/text/PString.h>
#include <gui/application/PApplication.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize startSize(450, 600);

QString dialogText(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

} // namespace

dlgSelect::dlgSelect(QWidget *parent)
    : QDialog(parent)
    , d(new dlgSelectPrivate)
{
    setWindowTitle(dialogText("Projekt auswählen"));
    auto *const layout = new QVBoxLayout(this);
    auto *const row = new QHBoxLayout;
    row->addSpacerItem(new QSpacerItem(9, 0, QSizePolicy::Minimum, QSizePolicy::Minimum));
    d->overrideBox =
        new QCheckBox(dialogText("Bereits zugewiesene Zielprojekte überschreiben"), this);
    d->overrideBox->setObjectName(QStringLiteral("overrideBox"));
    row->addWidget(d->overrideBox);
    layout->addLayout(row);
    d->selectWidget = new SelectWidget(false, true, this);
    layout->addWidget(d->selectWidget);
    auto *const buttons = new QDialogButtonBox(Qt::Horizontal, this);
    d->selectButton = buttons->addButton(dialogText("Auswählen"), QDialogButtonBox::AcceptRole);
    d->selectButton->setObjectName(QStringLiteral("selectButton"));
    d->selectButton->setEnabled(false);
    buttons->addButton(QDialogButtonBox::Close);
    layout->addWidget(buttons);
    connect(d->selectWidget,
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(onSelectionChanged()));
    // The widget's signal has an argument, so this connects nothing: a double click chooses nothing
    // here, which hosts rely on.
    connect(d->selectWidget, "2doubleClicked()", this, SLOT(onDoubleClick()));
    connect(buttons, SIGNAL(accepted()), this, SLOT(onDoubleClick()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    resize(startSize);
    PApplication::setupWindow(this);
}

dlgSelect::~dlgSelect()
{
    PApplication::saveWindow(this);
    delete d;
}

void *dlgSelect::operator new(size_t size)
{
    return ::operator new(size);
}

void dlgSelect::operator delete(void *object)
{
    ::operator delete(object);
}

void dlgSelect::preselectCatalog(const QString &catalogName)
{
    d->preselectName = catalogName;
    onSelectionChanged();
}

bool dlgSelect::overrideAlreadyMappedProjects() const
{
    return d->overrideBox->isChecked();
}

void dlgSelect::onSelectionChanged()
{
    d->selectWidget->preselect(d->preselectName);
    d->selectWidget->updateButton(d->selectButton);
}

void dlgSelect::onDoubleClick()
{
    const PRefPtr<IndexTreeDisplayItemI> item = d->selectWidget->selectedItem();
    if (!item || !(item->canSelect() || item->canActivate()))
        return;
    Q_EMIT itemSelected(item);
    accept();
}
