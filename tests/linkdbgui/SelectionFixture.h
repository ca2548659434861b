#pragma once

#include "../geomcore/IndexTreeFolder.h"

#include <geomcore/index/IndexTreeC.h>

#include <QTreeView>
#include <QWidget>

#include <memory>

/// The process's index tree over a folder of the test's own.
class SelectionFixture
{
public:
    explicit SelectionFixture(const QStringList &paths)
        : folder(paths)
        , m_former(IndexTreeC::instance()->catalogRoot())
    {
        IndexTreeC::instance()->setCatalogRoot(PPathName(folder.root()));
    }
    ~SelectionFixture() { IndexTreeC::instance()->setCatalogRoot(m_former); }
    SelectionFixture(const SelectionFixture &) = delete;
    SelectionFixture &operator=(const SelectionFixture &) = delete;

    const IndexTreeFolder folder;

private:
    const PPathName m_former;
};

inline QTreeView *treeOf(const QWidget &widget)
{
    return widget.findChild<QTreeView *>(QStringLiteral("catalogIndexTree"));
}

/// Row of the tree by its texts, "a/b"; opens the rows on the way.
inline QModelIndex rowAt(QTreeView *tree, const QString &path)
{
    QModelIndex found;
    for (const QString &name : path.split('/')) {
        if (found.isValid() && tree->isVisible())
            tree->expand(found);
        else if (tree->model()->canFetchMore(found))
            tree->model()->fetchMore(found);
        QModelIndex next;
        for (int row = 0; row < tree->model()->rowCount(found); ++row) {
            const QModelIndex index = tree->model()->index(row, 0, found);
            if (index.data().toString() == name)
                next = index;
        }
        found = next;
        if (!found.isValid())
            return found;
    }
    tree->scrollTo(found);
    return found;
}

inline QStringList topRows(const QTreeView *tree)
{
    QStringList texts;
    for (int row = 0; row < tree->model()->rowCount(); ++row)
        texts += tree->model()->index(row, 0).data().toString();
    return texts;
}

inline void clickRow(QTreeView *tree, const QString &path, bool twice = false)
{
    const QPoint place = tree->visualRect(rowAt(tree, path)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
    if (twice)
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
}

/// Counts the warnings of connections as long as it lives.
class ConnectionWarnings
{
public:
    ConnectionWarnings()
    {
        texts().clear();
        m_former = qInstallMessageHandler(take);
    }
    ~ConnectionWarnings() { qInstallMessageHandler(m_former); }
    ConnectionWarnings(const ConnectionWarnings &) = delete;
    ConnectionWarnings &operator=(const ConnectionWarnings &) = delete;

    static QStringList &texts()
    {
        static QStringList all;
        return all;
    }

private:
    static void take(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        if (type == QtWarningMsg && text.contains("connect"))
            texts().append(text);
    }

    QtMessageHandler m_former;
};
