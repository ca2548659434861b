#pragma once

#include "MappingMaker.h"

#include <QDialog>

class DirectoryEdit;

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSettings;
QT_END_NAMESPACE

/// Asks for what a new mapping is made of: two releases, the catalog in each, and the file.
class NewMappingDialog : public QDialog
{
    Q_OBJECT

public:
    /// What was chosen last is remembered in \a store.
    NewMappingDialog(QSettings *store, QWidget *parent);
    ~NewMappingDialog() override;

    [[nodiscard]] MappingMaker::Wish wish() const;

public Q_SLOTS:
    void accept() override;

private:
    void buildForm();
    void fillCatalogs(QComboBox *box, const DirectoryEdit *directory);
    void proposeFile();
    void check();
    [[nodiscard]] QString problem() const;
    /// False if the file is there and the user does not want it to be used.
    [[nodiscard]] bool mayUseFile();

    QSettings *const m_store;
    DirectoryEdit *const m_source;
    DirectoryEdit *const m_target;
    QComboBox *const m_sourceCatalog;
    QComboBox *const m_targetCatalog;
    QLineEdit *const m_file;
    QCheckBox *const m_assign;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
