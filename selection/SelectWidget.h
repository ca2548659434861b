#pragma once

#include <core/text/PRefPtr.h>
#include <geomcore/index/IndexTreeDisplayItemI.h>

#include <QFileSystemWatcher>
#include <QHash>
#include <QItemSelection>
#include <QPersistentModelIndex>
#include <QSet>
#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QCheckBox;
class QLabel;
class QTreeView;
QT_END_NAMESPACE

class IndexTreeFilterProxyModelC;
class IndexTreeModelC;
class IndexTreeModelColumnC;

/// The catalog index as a tree in which a project is picked. Directories that are open follow what
/// comes and goes on the disk; those of a repository stay as they were read.
class SelectWidget : public QWidget
{
    Q_OBJECT

public:
    /// \a erpIcons shows icons with ERP marks; without \a unfiltered only what can be selected, and
    /// the directories on the way to it, is shown.
    SelectWidget(bool erpIcons, bool unfiltered, QWidget *parent);
    ~SelectWidget() override;

    [[nodiscard]] QCheckBox *getFileNameBox() const { return fileNameBox; }
    /// Item of the first selected index; null if none is selected.
    [[nodiscard]] PRefPtr<IndexTreeDisplayItemI> selectedItem() const;
    /// Selects a catalog, if the tree has it, and empties the name, if it had one. The name is
    /// still there while the selection announces its change.
    void preselect(QString &catalogName);
    /// Enables the button if the selected item can be selected.
    void updateButton(QAbstractButton *button) const;

Q_SIGNALS:
    void doubleClicked(QModelIndex index);
    void selectionChanged(QItemSelection selected, QItemSelection deselected);

public Q_SLOTS:
    void onSwitchFilenameView();

private:
    void showProblem(const QString &problem);
    void watch(const QModelIndex &directory);
    void readChanged();

    QCheckBox *fileNameBox;
    QTreeView *treeView;
    QLabel *problemLabel = nullptr; ///< why a directory cannot be opened
    IndexTreeModelC *treeModel;
    IndexTreeFilterProxyModelC *proxyModel;
    PRefPtr<IndexTreeModelColumnC> nameColumn;
    QFileSystemWatcher watcher;
    QHash<QString, QPersistentModelIndex> watched; ///< rows of the tree's model by directory
    QSet<QString> changed;
    QTimer changedTimer;
};
