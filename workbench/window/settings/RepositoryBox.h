#pragma once

#include "RepositorySettings.h"

#include <QGroupBox>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
class QSpinBox;
QT_END_NAMESPACE

/// The part of the settings that is about the catalogs' repositories. Switched on by its title.
class RepositoryBox : public QGroupBox
{
    Q_OBJECT

public:
    RepositoryBox(const RepositorySettings &settings, QWidget *parent);

    [[nodiscard]] RepositorySettings settings() const;
    /// What is wrong, or nothing.
    [[nodiscard]] QString problem() const;

Q_SIGNALS:
    void changed();

private:
    QPlainTextEdit *const m_servers;
    QSpinBox *const m_revision;
    QSpinBox *const m_cache;
    QSpinBox *const m_silence;
};
