#include "WelcomePage.h"

#include <gui/views/Inks.h>

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int TextWidth = 560;

} // namespace

WelcomePage::WelcomePage(const QList<QAction *> &actions, QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_intro(new QLabel(this))
    , m_recentTitle(new QLabel(this))
    , m_recent(new QVBoxLayout)
{
    setObjectName("WelcomePage");
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    m_title->setFont(large);
    m_intro->setWordWrap(true);
    m_intro->setFixedWidth(TextWidth);
    auto *column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(m_title);
    column->addWidget(m_intro);
    column->addSpacing(12);
    auto *row = new QHBoxLayout;
    for (QAction *action : actions) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setMinimumHeight(34);
        row->addWidget(button);
    }
    row->addStretch(1);
    column->addLayout(row);
    column->addSpacing(12);
    column->addWidget(m_recentTitle);
    column->addLayout(m_recent);
    column->addStretch(2);
    auto *layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(column);
    layout->addStretch(1);
    retranslate();
    setRecentFiles({});
}

void WelcomePage::setRecentFiles(const QStringList &files)
{
    while (QLayoutItem *item = m_recent->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_recentTitle->setVisible(!files.isEmpty());
    for (const QString &file : files) {
        auto *link = new QLabel(this);
        const QString shown = link->fontMetrics().elidedText(file, Qt::ElideMiddle, TextWidth);
        link->setText(QStringLiteral("<a href=\"%1\">%2</a>")
                          .arg(file.toHtmlEscaped(), shown.toHtmlEscaped()));
        link->setToolTip(file);
        link->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
        connect(link, &QLabel::linkActivated, this, [this, file] { Q_EMIT fileChosen(file); });
        m_recent->addWidget(link);
    }
}

void WelcomePage::retranslate()
{
    m_title->setText(tr("Katalogstände abgleichen"));
    m_intro->setText(tr("Ein Katalog ist neu erschienen, und jede Zeile des alten Stands muss auf "
                        "eine Zeile des neuen übertragen werden. Das Programm schlägt vor, Sie "
                        "prüfen und bestätigen."));
    m_recentTitle->setText(tr("Zuletzt geöffnet:"));
}

void WelcomePage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::PaletteChange)
        Inks::rewriteLinks(this);
}
