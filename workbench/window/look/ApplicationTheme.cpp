#include "ApplicationTheme.h"

#include "WorkbenchStyle.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QToolTip>

namespace {

struct Colours
{
    QColor window;
    QColor base;
    QColor alternate;
    QColor button;
    QColor text;
    QColor disabled;
    QColor placeholder;
    QColor highlight;
    QColor highlightedText;
    QColor link;
    QColor toolTip;
};

const Colours lightColours{0xf3f4f6, 0xffffff, 0xf5f7fa, 0xe9ebee, 0x1b1f24, 0x8b929b,
                           0x646b74, 0x2f6fb3, 0xffffff, 0x1a5fa8, 0xfffbe0};
const Colours darkColours{0x2b2d31, 0x1f2124, 0x26282c, 0x383b40, 0xe6e8eb, 0x858b93,
                          0x9aa1a9, 0x3474b8, 0xffffff, 0x7fb5ee, 0x3a3c30};
// White on black; every edge is drawn by WorkbenchStyle.
const Colours contrastColours{0xff000000, 0xff000000, 0xff1c1c1c, 0xff000000,
                              0xffffffff, 0xffb0b0b0, 0xffd8d8d8, 0xffffe600,
                              0xff000000, 0xff8cd3ff, 0xff000000};

QPalette paletteOf(const Colours &colours)
{
    QPalette palette(colours.button, colours.window);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, colours.disabled);
    }
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, colours.placeholder);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.disabled);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    palette.setColor(QPalette::ToolTipBase, colours.toolTip);
    palette.setColor(QPalette::ToolTipText, colours.text);
    return palette;
}

} // namespace

void ApplicationTheme::setColours(const QString &theme)
{
    static const QPalette desktopTips = QToolTip::palette();
    const bool isOwn = names().contains(theme);
    const bool highContrast = theme == "contrast";
    QApplication::setStyle(new WorkbenchStyle(highContrast ? WorkbenchStyle::HighContrast
                                              : isOwn      ? WorkbenchStyle::Own
                                                           : WorkbenchStyle::Desktop));
    if (!isOwn) {
        QApplication::setPalette(QPalette());
        QToolTip::setPalette(desktopTips);
        return;
    }
    const QPalette palette = paletteOf(highContrast      ? contrastColours
                                       : theme == "dark" ? darkColours
                                                         : lightColours);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

QStringList ApplicationTheme::names()
{
    return {"light", "dark", "contrast"};
}

void ApplicationTheme::setFontPercent(int percent)
{
    static const QFont started = QApplication::font();
    QFont font = started;
    if (started.pointSizeF() > 0)
        font.setPointSizeF(started.pointSizeF() * percent / 100);
    else
        font.setPixelSize(started.pixelSize() * percent / 100);
    if (font != QApplication::font())
        QApplication::setFont(font);
}

bool ApplicationTheme::isDark()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}
