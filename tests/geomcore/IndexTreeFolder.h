#pragma once

#include <geomcore/index/IndexTreeC.h>

#include <QAbstractItemModel>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

/// A catalog root in a temporary directory with project files that have no table.
class IndexTreeFolder
{
public:
    /// Paths with a "/" at the end are made directories, others project files.
    explicit IndexTreeFolder(const QStringList &paths)
    {
        for (const QString &path : paths)
            add(path, {});
    }
    void add(const QString &path, const QByteArray &name) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_dir.filePath(path)).path()));
        if (path.endsWith('/'))
            return;
        QFile file(m_dir.filePath(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[PROJECT]\n" + (name.isEmpty() ? QByteArray() : "NAME=" + name + '\n'));
    }
    [[nodiscard]] QString root() const { return m_dir.path(); }
    [[nodiscard]] PRefPtr<IndexTreeC> tree() const
    {
        return new IndexTreeC(PPathName(m_dir.path()));
    }

private:
    QTemporaryDir m_dir;
};

/// The rows below, in their order, each with those below it in brackets: "a(b(c) d)". Opens all.
inline QString rowsOf(QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    if (model.canFetchMore(parent))
        model.fetchMore(parent);
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = rowsOf(model, index);
        texts += index.data().toString() + (below.isEmpty() ? QString() : '(' + below + ')');
    }
    return texts.join(' ');
}
