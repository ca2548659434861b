#pragma once

#include <QGroupBox>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLineEdit;
class QSpinBox;
QT_END_NAMESPACE

/// The part of the settings that is about the link database. Switched on by its title. There is no
/// place for a password.
class LinkDbBox : public QGroupBox
{
    Q_OBJECT

public:
    /// \a address as LinkDbSettings has it; \a standardFile is suggested.
    LinkDbBox(const QString &address, const QString &standardFile, QWidget *parent);

    /// Empty if none is used.
    [[nodiscard]] QString address() const;
    /// What is wrong, or nothing.
    [[nodiscard]] QString problem() const;

Q_SIGNALS:
    void changed();

private:
    enum Kind { OfFile, OfServer };

    void showKind();

    QComboBox *const m_kind;
    QLineEdit *const m_file;
    QLineEdit *const m_host;
    QSpinBox *const m_port;
    QLineEdit *const m_database;
    QLineEdit *const m_user;
    QComboBox *const m_encryption;
    int m_connectSeconds = 0; ///< has no field
    QList<QWidget *> m_ofServer;
};
