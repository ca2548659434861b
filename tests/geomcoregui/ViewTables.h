#pragma once

#include "../support/TestTables.h"

#include <boost/make_shared.hpp>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/TabOptions.h>

/// Tables with status columns, for tests of their views.
namespace ViewTables {

/// Keys "State" (M with an image, C with a handler that counts, X without either) and "Range".
inline boost::shared_ptr<VKTab::TabOptions> options(const QString &image, int *asked = nullptr,
                                                    QList<int> *numbers = nullptr)
{
    auto result = boost::make_shared<VKTab::TabOptions>();
    result->setStatusColumnsShown(true);
    VKTab::StatusKey state(VKTab::StatusKey::IconColumn, QStringLiteral("State"));
    VKTab::StatusValue &confirmed = state.addValue(QStringLiteral("M"));
    confirmed.setImageFile(image);
    confirmed.setToolTipText(QStringLiteral("<b>confirmed</b>"));
    VKTab::StatusValue &check = state.addValue(QStringLiteral("C"));
    check.setImageFile(image);
    check.setToolTipText(QStringLiteral("unused"));
    check.setToolTipHandler2(
        [asked, numbers](const VKTab::LineI &line, int row, int icon, QWidget *) {
            if (asked)
                ++*asked;
            if (numbers)
                *numbers = {line.getLineInfo().getLineId().value(0), row, icon};
            return QStringLiteral("asked for line %1").arg(line.getLineInfo().getLineId().value(0));
        });
    state.addValue(QStringLiteral("X"));
    result->setStatusKey(state);
    VKTab::StatusKey range(VKTab::StatusKey::IconColumn, QStringLiteral("Range"));
    range.addValue(QStringLiteral("VR")).setImageFile(image);
    result->setStatusKey(range);
    return result;
}

inline void setState(const VKTab::Content &table, int line, const QString &value,
                     const QString &key = QStringLiteral("State"))
{
    table.getModifyLayer()->setLineKeyValue(VKTab::LineId(line), key, value);
}

/// Three plain columns: A the line's number from the end, B one of ten texts, C a text of its own.
inline VKTab::ContentRef large(int lines)
{
    QString csv = QStringLiteral("A,B,C\n");
    for (int i = 0; i < lines; ++i)
        csv += QStringLiteral("%1,b%2,c%3\n").arg(lines - i).arg(i % 10).arg(i);
    VKTab::TableDescriptor descriptor;
    descriptor.normNumber = QStringLiteral("Large");
    descriptor.fields = {TestTables::field(QStringLiteral("A"), VKTab::FieldType::Integer),
                         TestTables::field(QStringLiteral("B")),
                         TestTables::field(QStringLiteral("C"))};
    return TestTables::table(descriptor, csv);
}

} // namespace ViewTables
