#pragma once

#include <QList>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
class QVBoxLayout;
QT_END_NAMESPACE

/// What stands in the window while no file is open: the ways to open one.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    /// A button for each action, which stays somebody else's.
    WelcomePage(const QList<QAction *> &actions, QWidget *parent);

    void setRecentFiles(const QStringList &files);

Q_SIGNALS:
    void fileChosen(const QString &file);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QLabel *const m_title;
    QLabel *const m_intro;
    QLabel *const m_recentTitle;
    QVBoxLayout *const m_recent;
};
