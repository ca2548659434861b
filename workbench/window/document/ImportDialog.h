#pragma once

#include <QDialog>

class DirectoryEdit;

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QSettings;
QT_END_NAMESPACE

/// Asks which folder of CSV files is imported into which catalog.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// What was chosen last is remembered in \a store.
    ImportDialog(QSettings *store, QWidget *parent);
    ~ImportDialog() override;

    /// Absolute, as is into().
    [[nodiscard]] QString from() const;
    /// The catalog's own folder, which may not be there yet.
    [[nodiscard]] QString into() const;

public Q_SLOTS:
    void accept() override;

private:
    void check();
    [[nodiscard]] QString problem() const;

    QSettings *const m_store;
    DirectoryEdit *const m_from;
    DirectoryEdit *const m_into;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
