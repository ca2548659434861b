#pragma once

#include "../support/SubversionServer.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/index/IndexTreeModelC.h>
#include <geomcore/repository/CatalogRepository.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A served repository with the catalog "cat": "screws/a.prj" and "screws/b.prj" with one table
/// each, "nuts/deep/c.prj" without, and files that are no projects.
class RepositoryFixture
{
public:
    RepositoryFixture()
    {
        write("screws/a.prj", "[PROJECT]\nNAME=Hexagon\nSACHM=a.json\n");
        write("screws/a.json", R"({"version": 1, "path": "a.csv", "variables": [)"
                               R"({"name": "D", "type": "number"}]})");
        write("screws/a.csv", "D\n1\n2\n");
        write("screws/b.prj", "[PROJECT]\nNAME=Cylinder\nSACHM=b.json\n");
        write("screws/b.json", R"({"version": 1, "path": "b.csv", "variables": [)"
                               R"({"name": "D", "type": "number"}]})");
        write("screws/b.csv", "D\n7\n");
        write("nuts/deep/c.prj", "[PROJECT]\nNAME=Wing\n");
        write(".hidden/d.prj", "[PROJECT]\n");
        write("readme.txt", "none");
        commit();
        QVERIFY2(server.start(), qPrintable(server.problem()));
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(files.filePath(name));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    void commit()
    {
        QVERIFY2(server.problem().isEmpty(), qPrintable(server.problem()));
        QVERIFY2(server.commit(files.path()), qPrintable(server.problem()));
    }
    [[nodiscard]] CatalogRepository::Options options() const
    {
        CatalogRepository::Options options;
        options.cacheDirectory = place.filePath("cache");
        options.servers.insert("cat", server.url());
        return options;
    }
    [[nodiscard]] std::shared_ptr<CatalogRepository> repository() const
    {
        return std::make_shared<CatalogRepository>(options());
    }

    QTemporaryDir files;
    QTemporaryDir place;
    SubversionServer server;
};

/// An index tree over a repository, as a model with the names.
class RepositoryTree
{
public:
    explicit RepositoryTree(const std::shared_ptr<CatalogRepository> &repository)
        : tree(new IndexTreeC(PPathName("/nowhere")))
    {
        tree->setRepository(repository);
        model = std::make_unique<IndexTreeModelC>(
            IndexTreeDisplayItemC::createFromNode(tree->getRoot()));
        model->addColumn(PRefPtr<IndexTreeModelColumnC>(
            new IndexTreeModelColumnC("", "Name", DisplayIndexC(DisplayIndexC::FileName))));
    }

    PRefPtr<IndexTreeC> tree;
    std::unique_ptr<IndexTreeModelC> model;
};
