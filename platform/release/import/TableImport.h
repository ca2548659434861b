#pragma once

#include <release/VelkReleaseGlobal.h>

#include "SourceText.h"

#include <geomcore/table/TableData.h>

#include <QStringList>

#include <optional>

namespace VelkRelease {

/// What the command line says to every table.
struct VELKRELEASE_EXPORT ImportOptions
{
    QString date;             ///< ISO 8601 in UTC; what a changed table's date becomes.
    bool dateIsGiven = false; ///< Unchanged tables get the date too.
    QString keyColumn;        ///< Empty: recognised.
    QString root;             ///< Directory of the catalog; nothing outside of it is touched.
    SourceForm form;
};

/// Imports one CSV file: NAME.csv becomes NAME.prj, NAME.json (the descriptor) and NAME.csv (the
/// lines with a column of line ids). The texts of the cells stay as they are. What an existing
/// descriptor says of a column that is still there holds; so do the ids of lines whose key is still
/// there.
class VELKRELEASE_EXPORT TableImport
{
public:
    enum class State { New, Changed, Unchanged };

    /// \a target: path of the result without an ending.
    TableImport(QString csvFile, QString target, ImportOptions options);

    /// Reads and works out the result; nothing is written. False with errors() if the input, or the
    /// table as it was imported before, cannot be read.
    [[nodiscard]] bool prepare();
    /// Writes what changed: each file beside its place, synced, and renamed when all are complete.
    /// False with errors() if that fails; then at most the renaming was begun.
    [[nodiscard]] bool write();

    [[nodiscard]] const VKTab::TableErrorList &errors() const { return m_errors; }
    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] int lineCount() const { return m_source ? m_source->rowCount() : 0; }
    [[nodiscard]] const VKTab::TableDescriptor &descriptor() const { return m_descriptor; }
    /// What deserves a look: repaired names, repeated keys, cells against the descriptor ...
    [[nodiscard]] const QStringList &notes() const { return m_notes; }

private:
    [[nodiscard]] bool readSource();
    [[nodiscard]] bool readFormer();
    [[nodiscard]] bool staysInCatalog();
    void describe();
    void takeFields();
    void checkField(const VKTab::TableField &field, const VKTab::TableField &found);
    void takeKey();
    void addLineIds();
    void makeCsv();
    void makeProject();
    void noteNames();
    void noteHeader();
    [[nodiscard]] bool checkResult();
    [[nodiscard]] QStringList idKey() const;
    void compareWithFormer();
    void error(const QString &file, const QString &text);

    QString m_csvFile;
    QString m_target;
    ImportOptions m_options;
    VKTab::TableErrorList m_errors;
    QStringList m_notes;
    State m_state = State::New;
    std::shared_ptr<const VKTab::TableData> m_source;
    std::shared_ptr<const VKTab::TableData> m_former;
    std::optional<VKTab::TableDescriptor> m_formerDescriptor;
    VKTab::TableDescriptor m_descriptor;
    bool m_addsIds = false;
    std::vector<int> m_lineNumbers;
    QByteArray m_csv;
    QByteArray m_project;
};

} // namespace VelkRelease
