#pragma once

#include <QWidget>

class QLineEdit;

/// A line for a directory's path with a button that asks for it.
class DirectoryEdit : public QWidget
{
    Q_OBJECT

public:
    /// \a title is what the dialog is called; the name is that of the line.
    DirectoryEdit(const QString &name, const QString &title, QWidget *parent);

    /// Absolute, without a final separator; empty if nothing is entered.
    [[nodiscard]] QString directory() const;
    void setDirectory(const QString &directory);

Q_SIGNALS:
    void directoryChanged();

private:
    QLineEdit *const m_line;
};
