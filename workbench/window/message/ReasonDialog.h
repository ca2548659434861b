#pragma once

#include <QDialog>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

/// Asks why something was decided. The list of reasons is the firm's, in the section REASONS of the
/// configuration "reasons", else a list of why a line has no successor.
class ReasonDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a lines: texts of lines to choose among, at least one. \a last is suggested.
    ReasonDialog(const QStringList &lines, const QString &last, QWidget *parent);
    ~ReasonDialog() override;

    /// Without blanks at its ends; never empty once the dialog is accepted.
    [[nodiscard]] QString reason() const;

    /// Which of the lines are meant.
    [[nodiscard]] int chosenLines() const;

    [[nodiscard]] static QStringList reasons();

private:
    QComboBox *const m_lines;
    QComboBox *const m_reason;
};
