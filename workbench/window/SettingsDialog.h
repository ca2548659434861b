#pragma once

#include "WorkbenchSettings.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QKeySequenceEdit;
class QLabel;
class QPushButton;
class QSpinBox;
QT_END_NAMESPACE

class LinkDbBox;
class RepositoryBox;

/// Changes the values of the settings; nothing applies before it is accepted.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Keys in \a takenKeys belong to other commands and are refused. \a linkDbFile is suggested
    /// for a link database.
    SettingsDialog(const WorkbenchSettings::Values &values, const QList<QKeySequence> &takenKeys,
                   const QString &linkDbFile, QWidget *parent);
    ~SettingsDialog() override;

    [[nodiscard]] WorkbenchSettings::Values values() const;

private:
    void check();
    [[nodiscard]] QString problem() const;

    const QList<QKeySequence> m_takenKeys;
    QComboBox *const m_language;
    QComboBox *const m_theme;
    QSpinBox *const m_font;
    QSpinBox *const m_autosave;
    QCheckBox *const m_goesOn;
    QKeySequenceEdit *const m_next;
    QKeySequenceEdit *const m_previous;
    RepositoryBox *const m_repository;
    LinkDbBox *const m_linkDb;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
