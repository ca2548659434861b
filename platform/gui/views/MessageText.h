#pragma once

#include <gui/VelkGuiGlobal.h>

#include "Inks.h"

#include <QPlainTextEdit>

/// Lines of a log or console, the latest at the end and in sight. Each keeps its meaning: when the
/// program's colours change, the lines that are there do too.
class VELKGUI_EXPORT MessageText : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// High enough for that many lines at first.
    MessageText(int lines, QWidget *parent);
    ~MessageText() override;

    void add(const QString &text, Inks::Ink ink);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void colourAnew();

    const int m_lines;
};
