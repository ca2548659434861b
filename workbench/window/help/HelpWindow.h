#pragma once

#include <QDialog>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;
QT_END_NAMESPACE

/// Shows the manual that the program carries with it: its contents on the left, a page on the
/// right. A topic is a page and, behind "#", one of its headings in small letters with "-" for
/// blanks, without other marks: "manual.md#find-anything".
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    /// The pages in the order of reading, as topics.
    [[nodiscard]] static QStringList pages();
    /// The topics of a page's headings in their order, with their texts.
    [[nodiscard]] static QList<std::pair<QString, QString>> headingsOf(const QString &page);

    explicit HelpWindow(QWidget *parent);
    ~HelpWindow() override;

    /// False if there is no such page or heading; then it shows what is nearest.
    bool showTopic(const QString &topic);
    [[nodiscard]] const QString &topic() const { return m_topic; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fillContents();
    /// The block that was gone to stands at the top.
    void scroll();
    void showPlace();
    [[nodiscard]] bool load(const QString &topic);
    void follow(const QUrl &link);
    void goBack();
    void find();

    QTreeWidget *const m_contents;
    QTextBrowser *const m_text;
    QPushButton *const m_back;
    QLineEdit *const m_find;
    QString m_topic;
    QStringList m_history; ///< topics that were left
};
