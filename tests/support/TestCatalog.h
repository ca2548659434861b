#pragma once

#include <geomcore/csv/TableDescriptor.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/Content.h>

#include <QTemporaryDir>

#include <functional>
#include <optional>

/// A catalog root, with the projects and tables that a test writes.
class TestCatalog
{
public:
    using Edit = std::function<void(VKTab::TableDescriptor &)>;

    /// In a temporary directory of its own.
    TestCatalog();
    /// In a directory that is made and stays.
    explicit TestCatalog(const QString &directory);

    [[nodiscard]] QString root() const { return m_root; }
    /// A tree over the root; the process's own is left alone.
    [[nodiscard]] const PRefPtr<IndexTreeC> &tree() const { return m_tree; }
    /// Native path of a project such as "cat/a.prj".
    [[nodiscard]] QString file(const QString &project) const;

    /// Writes project, descriptor and lines. The header row of the table tells the kinds of
    /// columns: "Name" text, "Name:n" number, "Name:r" range, "Name:i" internal. \a edit changes
    /// the descriptor before it is written.
    void write(const QString &project, const QByteArray &table, const Edit &edit = {}) const;
    void writeFile(const QString &path, const QByteArray &bytes) const;

    /// The same in short, as imports make it: \a path without ending; the rows of \a table are
    /// parted by semicolons, and all columns are texts; \a key names the identifying columns. Empty
    /// dates are left out.
    void add(const QString &path, const QByteArray &table, const QStringList &key = {},
             const QByteArray &date = "2022-05-01T10:00:00Z",
             const QByteArray &tableDate = {}) const;
    /// A project file that names no table.
    void addWithoutTable(const QString &path) const;

    /// The project's table; not valid if it cannot be read.
    [[nodiscard]] VKTab::Content read(const QString &project) const;

private:
    std::optional<QTemporaryDir> m_own;
    QString m_root;
    PRefPtr<IndexTreeC> m_tree;
};

/// A mapping of a source project at version "v1" with valid targets; conditions and modifiers to be
/// added. The path "" makes the not-found target.
[[nodiscard]] PrjMappingC mappingOf(const QString &source, const QStringList &targets);
/// A catalog mapping with one release that holds the mapping.
[[nodiscard]] CatalogMappingC catalogOf(const PrjMappingC &mapping);
/// Adds to a target of the mapping. The texts must parse.
void addCondition(PrjMappingC &mapping, int target, const QString &condition);
void addRename(PrjMappingC &mapping, int target, const QString &source, const QString &name);
void addFormula(PrjMappingC &mapping, int target, const QString &formula);
/// Enters a line in a target.
void enter(PrjMappingC &mapping, int target, int sourceLine, int targetLine,
           PRJMAPPING::CheckState state, const QString &extended = {});
/// All entries of the mapping, "target:source>line/state" each, sorted: "0:1>7/1 -:2>-1/0" with "-"
/// for the not-found target.
[[nodiscard]] QString entriesOf(const PrjMappingC &mapping);
