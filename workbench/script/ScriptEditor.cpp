#include "ScriptEditor.h"

#include <core/access/openRegularFile.h>
#include <core/files/DurableFile.h>
#include <gui/application/PApplication.h>
#include <gui/progress/ProgressInputFilter.h>
#include <gui/views/Inks.h>

#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QStringDecoder>
#include <QTextBlock>
#include <QVBoxLayout>

namespace {

constexpr qint64 largestFile = 16 << 20;

} // namespace

ScriptEditor::ScriptEditor(QWidget *parent)
    : QDialog(parent)
    , m_text(new QPlainTextEdit(this))
    , m_arguments(new QLineEdit(this))
    , m_argumentsTitle(new QLabel(this))
    , m_message(new QLabel(this))
    , m_open(new QPushButton(this))
    , m_save(new QPushButton(this))
    , m_run(new QPushButton(this))
    , m_stop(new QPushButton(this))
{
    setObjectName("ScriptEditor");
    m_text->setObjectName("scriptText");
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabStopDistance(m_text->fontMetrics().horizontalAdvance(QLatin1Char(' ')) * 4);
    m_arguments->setObjectName("scriptArguments");
    m_argumentsTitle->setBuddy(m_arguments);
    m_message->setObjectName("scriptMessage");
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_open->setObjectName("openScript");
    m_save->setObjectName("saveScript");
    m_run->setObjectName("runScript");
    m_stop->setObjectName("stopScript");
    m_stop->setProperty(ProgressInputFilter::CancelsProgress, true);
    m_stop->setEnabled(false);
    auto *const buttons = new QHBoxLayout;
    for (QPushButton *const button : {m_open, m_save, m_run, m_stop}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    buttons->addWidget(m_argumentsTitle);
    buttons->addWidget(m_arguments);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_message);
    connect(m_open, &QPushButton::clicked, this, &ScriptEditor::openByDialog);
    connect(m_save, &QPushButton::clicked, this, &ScriptEditor::save);
    connect(m_run, &QPushButton::clicked, this, &ScriptEditor::run);
    connect(m_stop, &QPushButton::clicked, this, &ScriptEditor::stopRequested);
    connect(m_text->document(), &QTextDocument::modificationChanged, this,
            &ScriptEditor::updateTitle);
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] { markLine(0); });
    retranslate();
    resize(760, 560);
    PApplication::setupWindow(this);
}

ScriptEditor::~ScriptEditor()
{
    PApplication::saveWindow(this);
}

QString ScriptEditor::program() const
{
    return m_text->toPlainText();
}

QString ScriptEditor::message() const
{
    return m_message->text();
}

bool ScriptEditor::openFile(const QString &file)
{
    QFile in(file);
    QString problem;
    const bool isOpen = openRegularFile(in, problem);
    if (isOpen && in.size() > largestFile)
        problem = tr("Sie ist zu groß.");
    const QByteArray bytes = isOpen && problem.isEmpty() ? in.readAll() : QByteArray();
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (utf8.hasError())
        problem = tr("Sie ist kein Text in UTF-8.");
    if (!problem.isEmpty()) {
        showOutcome(tr("%1 kann nicht gelesen werden. %2").arg(file, problem), true, 0);
        return false;
    }
    m_file = file;
    m_text->setPlainText(text);
    m_text->document()->setModified(false);
    showOutcome(QString(), false, 0);
    updateTitle();
    return true;
}

void ScriptEditor::openByDialog()
{
    if (!mayDrop())
        return;
    const QString file = QFileDialog::getOpenFileName(this, tr("Skript öffnen"), m_file,
                                                      tr("Skripte (*.js);;Alle Dateien (*)"));
    if (!file.isEmpty())
        openFile(file);
}

bool ScriptEditor::save()
{
    const QString file = m_file.isEmpty()
                             ? QFileDialog::getSaveFileName(this, tr("Skript speichern"), QString(),
                                                            tr("Skripte (*.js);;Alle Dateien (*)"))
                             : m_file;
    if (file.isEmpty())
        return false;
    QString problem;
    if (!DurableFile::write(file, program().toUtf8(), &problem)) {
        showOutcome(tr("%1 kann nicht geschrieben werden. %2").arg(file, problem), true, 0);
        return false;
    }
    m_file = file;
    m_text->document()->setModified(false);
    updateTitle();
    return true;
}

bool ScriptEditor::mayDrop()
{
    if (!m_text->document()->isModified())
        return true;
    QMessageBox question(QMessageBox::Question, windowTitle(),
                         tr("Das Skript ist nicht gespeichert."),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setObjectName("scriptUnsaved");
    question.setDefaultButton(QMessageBox::Save);
    // Qt does not have them in each of the languages.
    question.button(QMessageBox::Save)
        ->setText(QCoreApplication::translate("DocumentDesk", "&Speichern"));
    question.button(QMessageBox::Discard)
        ->setText(QCoreApplication::translate("DocumentDesk", "&Verwerfen"));
    question.button(QMessageBox::Cancel)
        ->setText(QCoreApplication::translate("Question", "Abbrechen"));
    switch (question.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void ScriptEditor::run()
{
    const QString name = m_file.isEmpty() ? tr("(ohne Namen)") : m_file;
    Q_EMIT runRequested(program(), name, QProcess::splitCommand(m_arguments->text()));
}

void ScriptEditor::setRunning(bool running)
{
    for (QPushButton *const button : {m_open, m_save, m_run})
        button->setEnabled(!running);
    m_stop->setEnabled(running);
    m_text->setReadOnly(running);
}

void ScriptEditor::showOutcome(const QString &text, bool isError, int line)
{
    QPalette colours = palette();
    if (isError)
        colours.setColor(QPalette::WindowText,
                         Inks::ink(Inks::Ink::Bad, colours, QPalette::Window));
    m_message->setPalette(colours);
    m_message->setText(text);
    markLine(line);
}

void ScriptEditor::markLine(int line)
{
    const QTextBlock block = m_text->document()->findBlockByNumber(line - 1);
    if (line < 1 || !block.isValid()) {
        m_text->setExtraSelections({});
        return;
    }
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(block);
    QColor colour(0xff, 0x52, 0x52, 60);
    mark.format.setBackground(colour);
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    m_text->setTextCursor(mark.cursor);
    m_text->setExtraSelections({mark});
    m_text->setFocus();
}

void ScriptEditor::updateTitle()
{
    const QString name = m_file.isEmpty() ? tr("Neues Skript") : QFileInfo(m_file).fileName();
    setWindowTitle(name + QStringLiteral("[*] – ") + tr("Skript"));
    setWindowModified(m_text->document()->isModified());
}

void ScriptEditor::retranslate()
{
    m_open->setText(tr("Öffnen …"));
    m_save->setText(tr("Speichern"));
    m_run->setText(tr("Ausführen"));
    // A new text takes a button's key away.
    m_open->setShortcut(QKeySequence::Open);
    m_save->setShortcut(QKeySequence::Save);
    m_run->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    m_run->setToolTip(m_run->shortcut().toString(QKeySequence::NativeText));
    m_stop->setText(tr("Anhalten"));
    m_argumentsTitle->setText(tr("Argumente:"));
    m_text->setAccessibleName(tr("Text des Skripts"));
    m_arguments->setAccessibleName(tr("Argumente"));
    updateTitle();
}

void ScriptEditor::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ScriptEditor::closeEvent(QCloseEvent *event)
{
    // Not the dialog's own, which would reject, and that closes.
    event->setAccepted(mayDrop());
}

void ScriptEditor::reject()
{
    close();
}
