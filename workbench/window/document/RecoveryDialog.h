#pragma once

#include <workbench/session/document/MappingDocument.h>

#include <QDialog>

/// After a crash: shows the saved version and the one with what was not saved side by side, and
/// lets the user choose. Rejected: nothing is opened, both versions stay.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    RecoveryDialog(const QString &file, const RecoveryOffer &offer, QWidget *parent);
    ~RecoveryDialog() override;

    /// What was chosen.
    [[nodiscard]] MappingDocument::Recovery choice() const { return m_choice; }

private:
    void addNotes(const RecoveryOffer &offer);
    void addButtons(const RecoveryOffer &offer);
    void choose(MappingDocument::Recovery choice);

    MappingDocument::Recovery m_choice = MappingDocument::Recovery::UseRecovered;
};
