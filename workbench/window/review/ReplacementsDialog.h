#pragma once

#include <geomcore/records/ReleaseMappingC.h>
#include <release/pattern/ReplacementEvidence.h>
#include <release/pattern/ValueChange.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
QT_END_NAMESPACE

/// What is agreed to about values, to be withdrawn, and what patterns offer, to be agreed to for
/// the whole release or a folder. Each one is shown with the lines that support it and those that
/// do not.
class ReplacementsDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a offered: changes of the chosen pattern, or of all. \a projectPath: project in sight, may
    /// be empty.
    ReplacementsDialog(const ReleaseMappingC &release, const QString &sourceRoot,
                       const QList<VelkRelease::ValueChange> &offered, const QString &projectPath,
                       QWidget *parent);
    ~ReplacementsDialog() override;

    /// As the user wants them.
    [[nodiscard]] const QList<AgreedReplacement> &replacements() const { return m_agreed; }

private:
    void fill();
    void agree();
    void withdraw();
    void showEvidence();
    void updateButtons();
    [[nodiscard]] const AgreedReplacement *current() const;

    const ReleaseMappingC m_release;
    const QString m_sourceRoot;
    QList<AgreedReplacement> m_agreed;
    QList<AgreedReplacement> m_offered;
    QListWidget *m_list = nullptr;
    QComboBox *m_folder = nullptr;
    QLabel *m_evidence = nullptr;
    QPushButton *m_agree = nullptr;
    QPushButton *m_withdraw = nullptr;
    QPushButton *m_showEvidence = nullptr;
};
