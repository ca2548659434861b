#pragma once

#include "LocatedJson.h"
#include "TableDescriptor.h"
#include "TableErrors.h"

namespace VKTab {

/// Turns the JSON of a descriptor into its value and notes what is wrong with its place, as many
/// faults as TableErrors keeps.
class TableDescriptorReader
{
public:
    TableDescriptorReader(const QByteArray &json, const QString &file, TableErrorList &errors);

    [[nodiscard]] std::optional<TableDescriptor> read();

private:
    void error(const LocatedJson &at, const QString &text);
    void readMember(const QString &name, const LocatedJson &value, TableDescriptor &out);
    void readFields(const LocatedJson &value, TableDescriptor &out);
    [[nodiscard]] TableField readField(const LocatedJson &value);
    void readFieldMember(const QString &name, const LocatedJson &value, TableField &field);
    void readConditions(const LocatedJson &value, TableDescriptor &out);
    void readDate(const LocatedJson &value, QString &out);
    void readText(const LocatedJson &value, QString &out);
    void readTexts(const LocatedJson &value, QStringList &out);
    void readBool(const LocatedJson &value, bool &out);
    void readCount(const LocatedJson &value, int &out);
    void readTextMap(const LocatedJson &value, QMap<QString, QString> &out);
    void readTranslations(const LocatedJson &value, TextTranslations &out);
    void keep(const QString &name, const LocatedJson &value, UnknownMembers &out) const;
    [[nodiscard]] bool isOf(LocatedJson::Type type, const LocatedJson &value, const char *what);

    const QByteArray &m_json;
    QString m_file;
    TableErrorList &m_errors;
    TableErrors m_found;
};

} // namespace VKTab
