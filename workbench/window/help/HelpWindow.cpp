#include "HelpWindow.h"

#include "HelpText.h"

#include <gui/application/PApplication.h>

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace {

constexpr int topicRole = Qt::UserRole;
const QString helpRoot = QStringLiteral("/manual/"); ///< of the resources

QString slugOf(const QString &heading)
{
    static const QRegularExpression marks(QStringLiteral("[^\\w\\- ]"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(marks).replace(u' ', u'-');
}

} // namespace

QStringList HelpWindow::pages()
{
    return {"manual/tour.md",     "manual.md",   "manual/scripts.md", "manual/database.md",
            "line-assignment.md", "glossary.md", "formats.md",        "scale.md"};
}

QList<std::pair<QString, QString>> HelpWindow::headingsOf(const QString &page)
{
    QFile file(u':' + helpRoot + page);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<std::pair<QString, QString>> headings;
    bool isCode = false;
    const QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &row : rows) {
        if (row.startsWith(QLatin1String("```")))
            isCode = !isCode;
        const qsizetype level = row.indexOf(u' ');
        if (isCode || !row.startsWith(u'#') || row.left(level).count(u'#') != level)
            continue;
        const QString text = row.mid(level + 1).remove(u'`').trimmed();
        headings.append({page + u'#' + slugOf(text), text});
    }
    return headings;
}

HelpWindow::HelpWindow(QWidget *parent)
    : QDialog(parent, Qt::Window)
    , m_contents(new QTreeWidget(this))
    , m_text(new HelpText(this))
    , m_back(new QPushButton(tr("&Zurück"), this))
    , m_find(new QLineEdit(this))
{
    setObjectName("HelpWindow");
    setWindowTitle(tr("Handbuch"));
    m_contents->setObjectName("helpContents");
    m_contents->setAccessibleName(tr("Inhalt"));
    m_contents->setHeaderHidden(true);
    m_text->setObjectName("helpText");
    m_text->setAccessibleName(tr("Handbuch"));
    m_text->setOpenLinks(false);
    m_back->setObjectName("helpBack");
    m_back->setAutoDefault(false);
    m_back->setEnabled(false);
    m_find->setObjectName("helpFind");
    m_find->setPlaceholderText(tr("Auf der Seite suchen"));
    m_find->setAccessibleName(tr("Auf der Seite suchen"));
    auto *const row = new QHBoxLayout;
    row->addWidget(m_back);
    row->addWidget(m_find, 1);
    auto *const splitter = new QSplitter(this);
    splitter->addWidget(m_contents);
    splitter->addWidget(m_text);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 720});
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(splitter, 1);
    fillContents();
    connect(m_contents, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem *item) {
        showTopic(item->data(0, topicRole).toString());
    });
    connect(m_contents, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem *item) {
        showTopic(item->data(0, topicRole).toString());
    });
    connect(m_text, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    connect(m_back, &QPushButton::clicked, this, &HelpWindow::goBack);
    connect(m_find, &QLineEdit::returnPressed, this, &HelpWindow::find);
    resize(980, 680);
    PApplication::setupWindow(this);
}

HelpWindow::~HelpWindow()
{
    PApplication::saveWindow(this);
}

void HelpWindow::fillContents()
{
    const QStringList all = pages();
    for (const QString &page : all) {
        QTreeWidgetItem *chapter = nullptr;
        const auto headings = headingsOf(page);
        for (const auto &[topic, text] : headings) {
            QTreeWidgetItem *const item =
                chapter ? new QTreeWidgetItem(chapter) : new QTreeWidgetItem(m_contents);
            item->setText(0, text);
            item->setToolTip(0, text);
            item->setData(0, topicRole, chapter ? topic : page);
            chapter = chapter ? chapter : item;
        }
    }
}

bool HelpWindow::showTopic(const QString &topic)
{
    if (!m_topic.isEmpty() && topic != m_topic)
        m_history << m_topic;
    m_back->setEnabled(!m_history.isEmpty());
    return load(topic);
}

bool HelpWindow::load(const QString &topic)
{
    const QString page = topic.section(u'#', 0, 0);
    const QString heading = topic.section(u'#', 1);
    if (!QFile::exists(u':' + helpRoot + page))
        return false;
    const QUrl source(QStringLiteral("qrc:") + helpRoot + page);
    if (m_text->source() != source)
        m_text->setSource(source, QTextDocument::MarkdownResource);
    m_topic = topic;
    showPlace();
    QTextBlock block = m_text->document()->begin();
    while (block.isValid() && !heading.isEmpty() &&
           (block.blockFormat().headingLevel() == 0 || slugOf(block.text()) != heading))
        block = block.next();
    m_text->setTextCursor(QTextCursor(block.isValid() ? block : m_text->document()->begin()));
    scroll();
    return block.isValid();
}

/// In the contents; a page has its place there if its heading has none.
void HelpWindow::showPlace()
{
    QTreeWidgetItem *place = nullptr;
    for (QTreeWidgetItemIterator it(m_contents); *it; ++it) {
        const QString topic = (*it)->data(0, topicRole).toString();
        if (topic == m_topic || (!place && topic == m_topic.section(u'#', 0, 0)))
            place = *it;
    }
    m_contents->setCurrentItem(place);
    m_contents->scrollToItem(place);
}

void HelpWindow::scroll()
{
    const QTextBlock block = m_text->textCursor().block();
    m_text->verticalScrollBar()->setValue(
        int(m_text->document()->documentLayout()->blockBoundingRect(block).top()));
}

/// Only now it is known how wide the page is.
void HelpWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QMetaObject::invokeMethod(this, &HelpWindow::scroll, Qt::QueuedConnection);
}

void HelpWindow::follow(const QUrl &link)
{
    if (link.scheme().startsWith(QLatin1String("http"))) {
        QDesktopServices::openUrl(link);
        return;
    }
    const QUrl url = m_text->source().resolved(link);
    QString topic = url.path().mid(helpRoot.size());
    if (url.hasFragment())
        topic += u'#' + url.fragment();
    showTopic(topic);
}

void HelpWindow::goBack()
{
    if (m_history.isEmpty())
        return;
    static_cast<void>(load(m_history.takeLast()));
    m_back->setEnabled(!m_history.isEmpty());
}

void HelpWindow::find()
{
    if (m_text->find(m_find->text()))
        return;
    m_text->moveCursor(QTextCursor::Start); // once more from the beginning
    m_text->find(m_find->text());
}
