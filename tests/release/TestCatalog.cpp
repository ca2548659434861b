#include "TestCatalog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

TestCatalog::TestCatalog(const QString &directory)
    : m_directory(directory)
{
    QDir().mkpath(directory);
}

void TestCatalog::add(const QString &path, const QByteArray &table, const QStringList &key,
                      const QByteArray &date, const QByteArray &tableDate)
{
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    const QByteArray dateLine = date.isEmpty() ? QByteArray() : "DATE = " + date + '\n';
    QJsonObject descriptor{{"primaryKey", QJsonArray::fromStringList(key)}};
    if (!tableDate.isEmpty())
        descriptor.insert("finalDate", QString::fromUtf8(tableDate));
    writeFile(path + ".prj", "[PROJECT]\n" + dateLine + "SACHM = " + name + ".json\n");
    writeFile(path + ".json", QJsonDocument(descriptor).toJson());
    writeFile(path + ".csv", QByteArray(table).replace(';', '\n') + '\n');
}

void TestCatalog::addWithoutTable(const QString &path)
{
    writeFile(path + ".prj", "[PROJECT]\nDATE = 2022-05-01T10:00:00Z\n");
}

void TestCatalog::writeFile(const QString &path, const QByteArray &bytes) const
{
    const QString name = m_directory + '/' + path;
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(name));
}
