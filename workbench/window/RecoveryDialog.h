#pragma once

#include <QDialog>

struct RecoveryOffer;
class QLabel;

/// After a crash: shows the saved version and the one with what was not saved side by side, and
/// lets the user choose. Rejected: nothing is opened, both versions stay.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    RecoveryDialog(const QString &file, const RecoveryOffer &offer, QWidget *parent);
    ~RecoveryDialog() override;

    /// The version with unsaved work was chosen.
    [[nodiscard]] bool recovers() const { return m_recovers; }

private:
    void choose(bool recover);

    bool m_recovers = true;
};
