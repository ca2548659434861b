#pragma once

#include <geomcore/table/Content.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/TableData.h>

#include <boost/make_shared.hpp>

/// Tables made of texts, for tests.
namespace TestTables {

inline VKTab::TableField field(const QString &name,
                               VKTab::FieldType type = VKTab::FieldType::String,
                               VKTab::FieldKind kind = VKTab::FieldKind::Plain)
{
    VKTab::TableField result;
    result.name = name;
    result.type = type;
    result.kind = kind;
    return result;
}

inline std::shared_ptr<const VKTab::TableData> data(const VKTab::TableDescriptor &descriptor,
                                                    const QString &csv)
{
    const VKTab::TableReadResult result =
        VKTab::TableData::fromMemory(descriptor, csv.toUtf8(), QStringLiteral("test.csv"));
    for (const VKTab::TableError &error : result.errors)
        qWarning("%s", qPrintable(error.toString()));
    return result.data;
}

inline VKTab::ContentRef table(const VKTab::TableDescriptor &descriptor, const QString &csv)
{
    VKTab::Content content;
    content.setFileLayer(boost::make_shared<VKTab::FileLayer>(data(descriptor, csv)));
    return content;
}

/// Screws: Dia is a number, L a range, Note a text, Weight hidden, Volume computed.
inline VKTab::TableDescriptor screwDescriptor()
{
    using namespace VKTab;
    TableDescriptor descriptor;
    descriptor.normNumber = QStringLiteral("DIN 931");
    descriptor.designation = QStringLiteral("Sechskantschraube");
    descriptor.lineDesignation = QStringLiteral("DIN 931 - {Dia} x {L}");
    descriptor.finalDate = QStringLiteral("2024-05-01T10:00:00Z");
    descriptor.attributes.insert(QStringLiteral("POOLID"), QStringLiteral("pool7"));
    descriptor.fields = {field(QStringLiteral("Dia"), FieldType::Number),
                         field(QStringLiteral("L"), FieldType::Number, FieldKind::Range),
                         field(QStringLiteral("Note")),
                         field(QStringLiteral("Weight"), FieldType::Number),
                         field(QStringLiteral("Volume"), FieldType::Number, FieldKind::Computed)};
    descriptor.fields[0].description = QStringLiteral("Durchmesser");
    descriptor.fields[1].zType = QStringLiteral("SM");
    descriptor.fields[3].hidden = true;
    descriptor.fields[3].unit = QStringLiteral("kg");
    descriptor.fields[3].decimalChar = ',';
    descriptor.fields[4].formula = QStringLiteral("Dia * 2");
    descriptor.translations[QStringLiteral("en")].insert(QStringLiteral("blank"),
                                                         QStringLiteral("plain"));
    descriptor.translations[QStringLiteral("en")].insert(QStringLiteral("Sechskantschraube"),
                                                         QStringLiteral("Hexagon bolt"));
    descriptor.translations[QStringLiteral("en")].insert(QStringLiteral("Durchmesser"),
                                                         QStringLiteral("Diameter"));
    return descriptor;
}

inline QString screwLines()
{
    return QStringLiteral("Dia,L,Note,Weight\n"
                          "8,10;12;16,blank,\"0,5\"\n"
                          "10,20,galvanised,\"1,25\"\n"
                          "12,10..50/5,blank,\n"
                          "16,,\"a \"\"b\"\"\",\"2,0\"\n");
}

inline VKTab::ContentRef screws()
{
    return table(screwDescriptor(), screwLines());
}

} // namespace TestTables
