#pragma once

#include "WorkbenchSettings.h"

#include <QDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
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
    /// A setting by the name of its field.
    struct Field
    {
        QString name;
        QString text;  ///< without mark and colon
        QString group; ///< the box that it is in; empty for none
    };

    /// \a linkDbFile is suggested for a link database.
    SettingsDialog(const WorkbenchSettings::Values &values, const QString &linkDbFile,
                   QWidget *parent);
    ~SettingsDialog() override;

    [[nodiscard]] WorkbenchSettings::Values values() const;
    [[nodiscard]] QList<Field> fields() const;
    /// The keys go to a field; false if there is none of that name. A box that is off has its title
    /// for it.
    bool focusField(const QString &name);

private:
    void check();
    [[nodiscard]] QStringList allowedPlaces() const;
    [[nodiscard]] QString problem() const;

    const PCommandKeys::Choice m_keys; ///< not changed here
    QComboBox *const m_language;
    QComboBox *const m_theme;
    QSpinBox *const m_font;
    QSpinBox *const m_autosave;
    QCheckBox *const m_goesOn;
    QPlainTextEdit *const m_allowed;
    RepositoryBox *const m_repository;
    LinkDbBox *const m_linkDb;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
