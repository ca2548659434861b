#include "SelectWidget.h"

#include <core/text/PString.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/index/IndexTreeFilterProxyModelC.h>
#include <geomcore/index/IndexTreeModelC.h>
#include <geomcore/index/IndexTreeModelColumnC.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int selectableRole = 33;
/// Many files may be written one after another.
constexpr int changedDelay = 100;

QString widgetText(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

PRefPtr<IndexTreeDisplayItemI> rootItem()
{
    return IndexTreeDisplayItemC::createFromNode(IndexTreeC::instance()->getRoot());
}

} // namespace

SelectWidget::SelectWidget(bool erpIcons, bool unfiltered, QWidget *parent)
    : QWidget(parent)
    , fileNameBox(new QCheckBox(widgetText("Dateinamen statt Beschreibungen anzeigen"), this))
    , treeView(new QTreeView(this))
    , treeModel(new IndexTreeModelC(rootItem(), treeView))
    , proxyModel(new IndexTreeFilterProxyModelC(treeView))
{
    fileNameBox->setObjectName(QStringLiteral("fileNameBox"));
    treeView->setObjectName(QStringLiteral("catalogIndexTree"));
    treeView->setAccessibleName(widgetText("Katalog"));
    auto *const layout = new QVBoxLayout(this);
    fileNameBox->setChecked(true);
    layout->addWidget(fileNameBox);
    layout->addWidget(treeView);
    connect(fileNameBox, SIGNAL(toggled(bool)), this, SLOT(onSwitchFilenameView()));

    nameColumn = new IndexTreeModelColumnC(PString(), widgetText("Name"), DisplayIndexC(2));
    nameColumn->addRole(Qt::DecorationRole,
                        erpIcons ? DisplayIndexC(QVariant(23), QVariant(1)) : DisplayIndexC(23));
    if (erpIcons)
        treeModel->setErpPrefetchingEnabled(true);
    if (!unfiltered)
        nameColumn->addRole(selectableRole, DisplayIndexC(44));
    treeModel->addColumn(nameColumn);
    proxyModel->setSourceModel(treeModel);
    if (!unfiltered) {
        proxyModel->setFilterKeyColumn(0);
        proxyModel->setFilterRole(selectableRole);
        proxyModel->setFilterFixedString(QStringLiteral("true"));
    }
    proxyModel->setFastChildDetection(true);
    proxyModel->setEmptyChildDetection(true);
    proxyModel->sort(0, Qt::AscendingOrder);
    treeView->setModel(proxyModel);
    connect(treeView, SIGNAL(doubleClicked(const QModelIndex &)), this,
            SIGNAL(doubleClicked(QModelIndex)));
    connect(treeView->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection &, const QItemSelection &)), this,
            SIGNAL(selectionChanged(QItemSelection, QItemSelection)));
    connect(treeModel, &IndexTreeModelC::readingFailed, this, &SelectWidget::showProblem);
    connect(treeModel, &IndexTreeModelC::rowsInserted, this, [this] { showProblem(QString()); });
    connect(treeView, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        treeModel->tryAgain(proxyModel->mapToSource(index));
    });
    changedTimer.setSingleShot(true);
    changedTimer.setInterval(changedDelay);
    connect(&changedTimer, &QTimer::timeout, this, &SelectWidget::readChanged);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, [this](const QString &path) {
        changed.insert(path);
        changedTimer.start();
    });
    connect(treeView, &QTreeView::expanded, this,
            [this](const QModelIndex &index) { watch(proxyModel->mapToSource(index)); });
    watch(QModelIndex());
}

/// Below the tree, as long as nothing else is read. There is no place for it until it is needed.
void SelectWidget::showProblem(const QString &problem)
{
    if (!problemLabel && problem.isEmpty())
        return;
    if (!problemLabel) {
        problemLabel = new QLabel(this);
        problemLabel->setObjectName(QStringLiteral("catalogProblem"));
        problemLabel->setTextFormat(Qt::PlainText);
        problemLabel->setWordWrap(true);
        layout()->addWidget(problemLabel);
    }
    problemLabel->setText(problem);
    problemLabel->setVisible(!problem.isEmpty());
}

void SelectWidget::watch(const QModelIndex &directory)
{
    const auto *const item =
        dynamic_cast<const IndexTreeDisplayItemC *>(treeModel->getDisplayItem(directory).get());
    if (item ? item->node()->isRemote() : IndexTreeC::instance()->repository() != nullptr)
        return; // it stays in one revision
    const QString path =
        item ? item->node()->file() : IndexTreeC::instance()->catalogRoot().native();
    // One that cannot be watched, on some file servers, stays as it was read.
    if (!watched.contains(path) && watcher.addPath(path))
        watched.insert(path, directory);
}

void SelectWidget::readChanged()
{
    for (const QString &path : std::exchange(changed, {})) {
        const auto directory = watched.constFind(path);
        if (directory == watched.constEnd())
            continue;
        const bool isRoot = path == IndexTreeC::instance()->catalogRoot().native();
        if (isRoot || directory->isValid())
            treeModel->readAgain(*directory);
        else
            watched.erase(directory);
    }
}

SelectWidget::~SelectWidget() = default;

PRefPtr<IndexTreeDisplayItemI> SelectWidget::selectedItem() const
{
    const QModelIndexList selected = treeView->selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return nullptr;
    return treeModel->getDisplayItem(proxyModel->mapToSource(selected.first()));
}

void SelectWidget::preselect(QString &catalogName)
{
    if (catalogName.isEmpty())
        return;
    const QModelIndex found = treeModel->index(PString(QStringLiteral("cat/") + catalogName), 0);
    if (found.isValid()) {
        const QModelIndex shown = proxyModel->mapFromSource(found);
        treeView->selectionModel()->select(shown, QItemSelectionModel::Select);
        treeView->scrollTo(shown, QAbstractItemView::EnsureVisible);
    }
    catalogName.clear();
}

void SelectWidget::updateButton(QAbstractButton *button) const
{
    const PRefPtr<IndexTreeDisplayItemI> item = selectedItem();
    button->setEnabled(item && item->canSelect());
}

void SelectWidget::onSwitchFilenameView()
{
    const bool fileNames = fileNameBox->isChecked();
    nameColumn->addRole(Qt::DisplayRole, fileNames ? DisplayIndexC(2) : DisplayIndexC(6));
    const QModelIndex first = treeModel->index(0, 0);
    const QModelIndex last = treeModel->index(treeModel->rowCount() - 1, 0);
    if (fileNames)
        proxyModel->sort(0, Qt::AscendingOrder);
    else
        proxyModel->sort(-1);
    treeModel->updateData(first, last);
}
