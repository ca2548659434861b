#pragma once

#include <geomcore/records/ReleaseMappingC.h>
#include <workbench/session/common/SessionTypes.h>

#include <QDialog>

class DirectoryEdit;
class QLabel;
class QPushButton;

/// Asks where the two releases of the catalog lie, and says at once whether a choice can be right.
class CatalogRootsDialog : public QDialog
{
    Q_OBJECT

public:
    CatalogRootsDialog(const ReleaseMappingC &release, const CatalogRoots &roots, QWidget *parent);
    ~CatalogRootsDialog() override;

    [[nodiscard]] CatalogRoots roots() const;

private:
    void check();
    /// What is wrong, or nothing.
    [[nodiscard]] QString problem() const;

    const QString m_sample; ///< source path of a project
    QString m_targetCatalog;
    DirectoryEdit *const m_source;
    DirectoryEdit *const m_target;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
