#include "TableFixture.h"

#include "SessionFixture.h"

#include <geomcore/project/PrjClass.h>
#include <geomcore/table/Reader.h>

#include <QDir>
#include <QFileInfo>
#include <QTest>

void TableFixture::write(const QString &folder, const QString &path,
                         const QList<QPair<int, QString>> &lines)
{
    const QFileInfo project(folder + u'/' + path);
    QVERIFY(QDir().mkpath(project.absolutePath()));
    const QString base = project.absolutePath() + u'/' + project.completeBaseName();
    const QByteArray name = project.completeBaseName().toUtf8();
    SessionFixture::setContent(project.absoluteFilePath(), "[PROJECT]\nNAME = " + name +
                                                               "\nDATE = 2026-01-31T12:00:00Z\n"
                                                               "SACHM = " +
                                                               name + ".json\n");
    SessionFixture::setContent(base + QStringLiteral(".json"),
                               R"({"lineIdField":"Id","lineDesignation":"Name",)"
                               R"("fields":[{"name":"Id","type":"integer","kind":"internal"}]})");
    QByteArray csv = "Name,Id\n";
    for (const auto &[id, text] : lines)
        csv += '"' + text.toUtf8() + "\"," + QByteArray::number(id) + '\n';
    SessionFixture::setContent(base + QStringLiteral(".csv"), csv);
}

VKTab::ContentRef TableFixture::read(const QString &folder, const QString &path)
{
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    VKTab::ContentRef table{VKTab::Content()};
    if (project->read(folder + u'/' + path, PrjClass::ReadAll) != 1 ||
        VKTab::Reader().readByProject(project, table, true) != 1)
        QTest::qFail("table not read", __FILE__, __LINE__);
    return table;
}
