#include "TestCatalog.h"

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/table/readProjectTable.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using VKTab::FieldKind;
using VKTab::FieldType;
using VKTab::TableField;

namespace {

TableField fieldOf(const QByteArray &column)
{
    TableField field;
    const qsizetype colon = column.lastIndexOf(':');
    const QByteArray kind = colon < 0 ? QByteArray() : column.mid(colon + 1);
    field.name = QString::fromUtf8(colon < 0 ? column : column.left(colon));
    if (kind == "n" || kind == "r")
        field.type = FieldType::Number;
    if (kind == "r")
        field.kind = FieldKind::Range;
    if (kind == "i")
        field.kind = FieldKind::Internal;
    return field;
}

template<class Change>
void changeTarget(PrjMappingC &mapping, int index, Change change)
{
    PrjMappingTargetC target = mapping.findTarget(index);
    change(target);
    mapping.updateTarget(index, target);
}

} // namespace

TestCatalog::TestCatalog()
    : m_own(std::in_place)
    , m_root(m_own->path())
    , m_tree(new IndexTreeC(PPathName(m_root)))
{
}

TestCatalog::TestCatalog(const QString &directory)
    : m_root(directory)
    , m_tree(new IndexTreeC(PPathName(m_root)))
{
    QVERIFY(QDir().mkpath(directory));
}

QString TestCatalog::file(const QString &project) const
{
    return root() + u'/' + project;
}

void TestCatalog::writeFile(const QString &path, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(file(path)).path());
    QFile out(file(path));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
}

void TestCatalog::write(const QString &project, const QByteArray &table, const Edit &edit) const
{
    const QString base = project.left(project.lastIndexOf(u'.'));
    const qsizetype headEnd = table.indexOf('\n');
    VKTab::TableDescriptor descriptor;
    QByteArrayList names;
    for (const QByteArray &column : table.left(headEnd).split(',')) {
        descriptor.fields.append(fieldOf(column));
        names.append(descriptor.fields.last().name.toUtf8());
    }
    if (edit)
        edit(descriptor);
    writeFile(base + ".csv", names.join(',') + table.mid(headEnd));
    writeFile(base + ".json", descriptor.toJson());
    writeFile(project, "[PROJECT]\nSACHM=" + QFileInfo(base).fileName().toUtf8() + ".json\n");
}

void TestCatalog::add(const QString &path, const QByteArray &table, const QStringList &key,
                      const QByteArray &date, const QByteArray &tableDate) const
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

void TestCatalog::addWithoutTable(const QString &path) const
{
    writeFile(path + ".prj", "[PROJECT]\nDATE = 2022-05-01T10:00:00Z\n");
}

VKTab::Content TestCatalog::read(const QString &project) const
{
    VKTab::Content content;
    (void)VKTab::readProjectTable(file(project), content, {.tells = false});
    return content;
}

PrjMappingC mappingOf(const QString &source, const QStringList &targets)
{
    PrjMappingC mapping;
    mapping.setSourcePath(source);
    mapping.setSourceVersion("v1");
    for (const QString &target : targets)
        mapping.addTarget(target, QString());
    return mapping;
}

CatalogMappingC catalogOf(const PrjMappingC &mapping)
{
    ReleaseMappingC release;
    release.addMapping(mapping);
    CatalogMappingC catalog;
    catalog.addRelease(release);
    return catalog;
}

void addCondition(PrjMappingC &mapping, int target, const QString &condition)
{
    changeTarget(mapping, target, [&](PrjMappingTargetC &changed) {
        changed.addCondition(VarsetConditionC::fromText(condition));
    });
}

void addRename(PrjMappingC &mapping, int target, const QString &source, const QString &name)
{
    changeTarget(mapping, target, [&](PrjMappingTargetC &changed) {
        changed.addModifier(new VarsetVarMappingC(source, name));
    });
}

void addFormula(PrjMappingC &mapping, int target, const QString &formula)
{
    changeTarget(mapping, target, [&](PrjMappingTargetC &changed) {
        changed.addModifier(VarsetValueMappingC::fromText(formula));
    });
}

void enter(PrjMappingC &mapping, int target, int sourceLine, int targetLine,
           PRJMAPPING::CheckState state, const QString &extended)
{
    changeTarget(mapping, target, [&](PrjMappingTargetC &changed) {
        changed.addLineId(sourceLine, targetLine, state, extended);
    });
}

QString entriesOf(const PrjMappingC &mapping)
{
    QStringList entries;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC target = mapping.findTarget(i);
        const QString name =
            target.getTargetPath().isEmpty() ? QStringLiteral("-") : QString::number(i);
        for (const LineTable::Iterator &entry : target.lines()) {
            entries.append(QStringLiteral("%1:%2>%3/%4")
                               .arg(name, QString::number(entry.sourceLine()),
                                    QString::number(entry.targetLine()),
                                    QString::number(int(entry.state()))));
        }
    }
    return entries.join(u' ');
}
