#include "DirectoryEdit.h"

#include "FileNames.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

DirectoryEdit::DirectoryEdit(const QString &name, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_line(new QLineEdit(this))
{
    m_line->setObjectName(name);
    m_line->setAccessibleName(title);
    m_line->setMinimumWidth(360);
    setFocusProxy(m_line);
    setFocusPolicy(m_line->focusPolicy()); // a label leads to nothing that takes no keys itself
    auto *button = new QToolButton(this);
    button->setText(QStringLiteral("..."));
    button->setToolTip(title);
    button->setAccessibleName(title);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 1);
    layout->addWidget(button);
    connect(m_line, &QLineEdit::textChanged, this, &DirectoryEdit::directoryChanged);
    connect(button, &QToolButton::clicked, this, [this, title] {
        const QString chosen = FileNames::askDirectory(this, title, directory());
        if (!chosen.isEmpty())
            setDirectory(chosen);
    });
}

QString DirectoryEdit::directory() const
{
    const QString text = m_line->text().trimmed();
    return text.isEmpty() ? text : QDir(text).absolutePath();
}

void DirectoryEdit::setDirectory(const QString &directory)
{
    m_line->setText(directory);
}
