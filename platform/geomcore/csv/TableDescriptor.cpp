#include "TableDescriptor.h"

#include <core/access/openRegularFile.h>
#include <core/text/PString.h>
#include <geomcore/value/CellKey.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace VKTab {

std::optional<TableDescriptor> TableDescriptor::read(const QString &file, TableErrorList &errors)
{
    QFile in(file);
    QString problem;
    if (!openRegularFile(in, problem)) {
        errors.append(
            {file, 0, 0,
             PString::translate("lässt sich nicht öffnen: %1", "VelkGeomCore").arg(problem)});
        return {};
    }
    const QByteArray json = in.readAll();
    if (in.error() != QFileDevice::NoError) {
        errors.append({file, 0, 0,
                       PString::translate("lässt sich nicht lesen: %1", "VelkGeomCore")
                           .arg(in.errorString())});
        return {};
    }
    return fromJson(json, file, errors);
}

int TableDescriptor::indexOf(QStringView fieldName) const
{
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (fields.at(i).name == fieldName)
            return int(i);
    }
    return -1;
}

bool TableDescriptor::isMissing(std::string_view cell) const
{
    const std::string_view text = trimmedCell(cell);
    const QUtf8StringView utf8(text.data(), qsizetype(text.size()));
    return std::any_of(
        missingValues.cbegin(), missingValues.cend(),
        [utf8](const QString &missing) { return QAnyStringView::compare(utf8, missing) == 0; });
}

QString TableDescriptor::csvFile(const QString &descriptorFile) const
{
    const QFileInfo info(descriptorFile);
    if (path.isEmpty())
        return QDir(info.path()).filePath(info.completeBaseName() + QStringLiteral(".csv"));
    return QDir::cleanPath(QDir(info.path()).filePath(path));
}

QString TableDescriptor::translate(const QString &text, int field, const QString &language) const
{
    if (field >= 0 && field < fields.size()) {
        const auto own = fields.at(field).translations.constFind(language);
        if (own != fields.at(field).translations.constEnd() && own->contains(text))
            return own->value(text);
    }
    const auto shared = translations.constFind(language);
    return shared == translations.constEnd() ? text : shared->value(text, text);
}

} // namespace VKTab
