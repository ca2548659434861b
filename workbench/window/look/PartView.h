#pragma once

#include <geomcore/table/ContentRef.h>

#include <QDialog>

class VkTableView;

QT_BEGIN_NAMESPACE
class QFormLayout;
QT_END_NAMESPACE

/// Shows a project of the catalog: where it is, what it is called, its versions, and its table with
/// find and filter. Nothing can be changed in it. Reads the project once, when it is made.
class PartView : public QDialog
{
    Q_OBJECT

public:
    /// \a catalogPath is the project's path in its catalog, \a file where it is.
    PartView(const QString &catalogPath, const QString &file, QWidget *parent);
    ~PartView() override;

    [[nodiscard]] const QString &catalogPath() const { return m_catalogPath; }

private:
    void addRow(QFormLayout *rows, const char *name, const QString &title, const QString &text);
    void addHead(const QString &file);
    void addButtons();

    const QString m_catalogPath;
    const QString m_file;
    VKTab::ContentRef m_table;
    VkTableView *m_view;
};
