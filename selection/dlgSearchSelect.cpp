#include "dlgSearchSelect.h"

#include "dlgSearchSelectPrivate.h"
#include "SelectWidget.h"

#include <core/config/PConfig.h>
#include <core/config/PConfigVal.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/search/IndexTreeVarSearchC.h>
#include <geomcore/search/RemoteSearchRequestDataC.h>
#include <geomcoregui/search/FileTreeGroup.h>
#include <geomcoregui/search/SearchWidget.h>
#include <geomcoregui/search/TileItemView.h>
#include <geomcoregui/search/TopSearchWidget.h>
#include <gui/application/PApplication.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr const char *configKey = "ShowFileNames";
constexpr const char *configSection = "CatalogMapping";
constexpr int fullTextOp = 1;
constexpr int fullTextType = 3;

QString searchDialogText(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

PRefPtr<IndexTreeVarSearchConditionC> makeFullTextCondition(const QString &keyWord)
{
    using Condition = IndexTreeVarSearchConditionC;
    PRefPtr<Condition> condition(new Condition(
        QStringLiteral(" "), Condition::CompareOp(fullTextOp), keyWord, QString(), QString()));
    condition->setSearchType(fullTextType);
    return condition;
}

} // namespace

dlgSearchSelect::dlgSearchSelect(QWidget *parent, bool erpIcons, bool unfiltered)
    : QDialog(parent)
    , d(new dlgSearchSelectPrivate)
{
    setObjectName(QStringLiteral("dlgSearchSelect"));
    setWindowTitle(searchDialogText("Projekt suchen oder auswählen"));
    d->fileTreeGroup = new FileTreeGroup(0);
    d->fileTreeGroup->SetAppConfig(PApplication::getAppConfig());
    d->fileTreeGroup->Init();
    auto *const layout = new QVBoxLayout(this);
    d->tabWidget = new QTabWidget(this);
    layout->addWidget(d->tabWidget);
    const QStringList searchNames{QStringLiteral("KeySearch"), IndexTreeVarSearchC::searchName()};
    d->searchWidget = new SearchWidget(searchNames, d->fileTreeGroup, this);
    d->tabWidget->addTab(d->searchWidget, searchDialogText("Suchen"));
    connect(d->searchWidget->getItemView(), SIGNAL(doubleClicked(const QModelIndex &)), this,
            SLOT(onDoubleClick()));
    connect(d->searchWidget->getItemView()->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(onSelectionChanged()));
    d->selectWidget = new SelectWidget(erpIcons, unfiltered, this);
    connect(d->selectWidget, SIGNAL(doubleClicked(const QModelIndex &)), this,
            SLOT(onDoubleClick()));
    connect(d->selectWidget,
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SLOT(onSelectionChanged()));
    d->tabWidget->addTab(d->selectWidget, searchDialogText("Auswählen"));
    const PConfigVal showFileNames =
        PApplication::getAppConfig()->getItemValue(configKey, configSection, QStringLiteral("1"));
    if (!showFileNames.GetBool(true))
        d->selectWidget->getFileNameBox()->setChecked(false);
    auto *const buttons = new QDialogButtonBox(Qt::Horizontal, this);
    d->selectButton =
        buttons->addButton(searchDialogText("Auswählen"), QDialogButtonBox::AcceptRole);
    d->selectButton->setObjectName(QStringLiteral("selectButton"));
    d->selectButton->setEnabled(false);
    buttons->addButton(QDialogButtonBox::Close);
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(onDoubleClick()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(d->tabWidget, SIGNAL(currentChanged(int)), this, SLOT(onSelectionChanged()));
    PApplication::setupWindow(this);
}

dlgSearchSelect::~dlgSearchSelect()
{
    PApplication::saveWindow(this);
    PApplication::getAppConfig()->SetValue(
        configKey, configSection,
        QString::number(int(d->selectWidget->getFileNameBox()->isChecked())));
    delete d->fileTreeGroup;
    delete d;
}

void *dlgSearchSelect::operator new(size_t size)
{
    return ::operator new(size);
}

void dlgSearchSelect::operator delete(void *object)
{
    ::operator delete(object);
}

void dlgSearchSelect::setSearchCatalog(const PRefPtr<IndexTreeNodeC> &node)
{
    TopSearchWidget *const top = d->searchWidget->getTopSearchWidget();
    const PRefPtr<RemoteSearchRequestDataC> request = top->getRequestData();
    request->setNodeList({node});
    request->setNodeListType(QStringLiteral("_siFixedCat"));
    top->setRequestData(request);
}

void dlgSearchSelect::setCurrentCatalog(const PRefPtr<IndexTreeNodeC> &node)
{
    d->searchWidget->getTopSearchWidget()->onIndexNodeSelected(
        IndexTreeDisplayItemC::createFromNode(node));
}

void dlgSearchSelect::setSearchKeyWord(const QString &keyWord)
{
    TopSearchWidget *const top = d->searchWidget->getTopSearchWidget();
    const PRefPtr<RemoteSearchRequestDataC> request = top->getRequestData();
    auto *search = dynamic_cast<IndexTreeVarSearchC *>(
        request->getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    if (!search) {
        search = new IndexTreeVarSearchC(IndexTreeC::instance());
        request->addSearchClass(PRefPtr<IndexTreeBaseSearchC>(search));
    }
    if (const PRefPtr<IndexTreeVarSearchConditionC> condition = search->findFullTextCondition()) {
        condition->setCmpOp(fullTextOp);
        condition->setVarName(QStringLiteral(" "));
        condition->setValLow(keyWord);
    } else {
        search->addCondition(makeFullTextCondition(keyWord));
    }
    search->setActivatedType(1);
    search->setUsedType(1);
    top->setRequestData(request);
}

void dlgSearchSelect::preselectCatalog(const QString &catalogName)
{
    d->preselectName = catalogName;
}

void dlgSearchSelect::clearSearchResults()
{
    d->searchWidget->getItemView()->showResults(nullptr);
}

void dlgSearchSelect::setCloseAfterSelect(bool close)
{
    d->closeAfterSelect = close;
}

PRefPtr<IndexTreeDisplayItemI> dlgSearchSelect::getSelectedItem() const
{
    return d->selectedItem;
}

void dlgSearchSelect::onSelectionChanged()
{
    if (d->tabWidget->currentIndex() == dlgSearchSelectPrivate::SearchTab) {
        d->selectButton->setEnabled(!d->searchWidget->getItemView()->getSelectedItems().isEmpty());
        return;
    }
    d->selectWidget->preselect(d->preselectName);
    d->selectWidget->updateButton(d->selectButton);
}

void dlgSearchSelect::onDoubleClick()
{
    if (d->tabWidget->currentIndex() == dlgSearchSelectPrivate::SearchTab)
        d->selectedItem = d->searchWidget->getItemView()->getSelectedItems().value(0);
    else
        d->selectedItem = d->selectWidget->selectedItem();
    const PRefPtr<IndexTreeDisplayItemI> item = d->selectedItem;
    if (!item || !(item->canSelect() || item->canActivate()))
        return;
    Q_EMIT itemSelected(item);
    if (d->closeAfterSelect)
        accept();
}
