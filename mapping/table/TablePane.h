#pragma once

#include <QString>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
QT_END_NAMESPACE

class VkTableView;
namespace VKTab {
class Content;
}

/// One side of the table editor: what is known of its project, buttons beside the norm number, the
/// table, and boxes below it.
class TablePane : public QWidget
{
    Q_OBJECT

public:
    /// \a side begins the object names: "source" gives "sourceView", "sourcePathLabel",
    /// "sourceDesignationLabel" and "sourceNumberLabel".
    TablePane(const QString &side, QWidget *parent);
    ~TablePane() override;

    // Owned by the pane.
    [[nodiscard]] VkTableView *view() const { return m_view; }
    [[nodiscard]] QLabel *pathLabel() const { return m_path; }
    [[nodiscard]] QLabel *designationLabel() const { return m_designation; }
    [[nodiscard]] QLabel *numberLabel() const { return m_number; }

    /// Shows a picture only, behind the buttons that are there already. Its shortcut acts at once,
    /// and a click leaves the focus where it is.
    QPushButton *addButton(const char *name, const QString &icon, const QString &toolTip);
    QCheckBox *addBox(const char *name, const QString &text);

    void showPath(const QString &path);
    void showNumberOf(const VKTab::Content &table);
    /// Path and norm number go.
    void clearTexts();

private:
    [[nodiscard]] QLabel *createLabel(const QString &name, const QString &meaning);
    static QLabel *nameLabel(QLabel *label, const QString &name, const QString &meaning);
    [[nodiscard]] QHBoxLayout *createRow(const QString &caption, QLabel *label);

    VkTableView *m_view;
    QLabel *m_path;
    QLabel *m_designation;
    QLabel *m_number;
    QHBoxLayout *m_numberRow;
};
