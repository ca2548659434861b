#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What the command line of velkworkbench asks for.
struct StartOptions
{
    enum class Outcome {
        Run,
        Over,  ///< `text` was asked for: help or version
        Wrong, ///< `text` says what is wrong with the arguments
    };

    Outcome outcome = Outcome::Run;
    QString text;

    QString mappingFile;
    QString sourceRoot;
    QString targetRoot;
    QString release;      ///< source date; empty: the last release of the file
    QString selectedPath; ///< source path of a project
    int selectedLine = -1;
    QString dialog;     ///< of the screenshot, see ScreenshotDialog; empty: the window
    QString dialogText; ///< in that dialog
    QString script;     ///< file; the program runs it and ends
    QStringList scriptArguments;
    QString scriptOutput; ///< the file that it may write
    QString screenshot;   ///< file; the program renders the editor into it and ends
    QSize size;           ///< of the window, in device independent pixels
    QString theme;        ///< "light", "dark", "contrast"; empty: as set
    QString language;     ///< one of EditorLanguages; empty: as set
    int scale = 1;
    QString settingsDirectory; ///< empty: the user's own
    bool readOnly = false;

    /// \a arguments without the program's name.
    [[nodiscard]] static StartOptions parse(const QStringList &arguments);
    /// What has to be in the environment before there is a QApplication: the platform that needs no
    /// display for a screenshot, and its scale.
    void prepareEnvironment() const;
};
