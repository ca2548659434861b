#include "StartOptions.h"

#include "EditorLanguages.h"

#include <core/Version.h>

#include <QCommandLineParser>

namespace {

using Outcome = StartOptions::Outcome;

QStringList dialogs()
{
    return {"formula", "search", "links",  "proof",  "documents",  "script", "locator",
            "keys",    "manual", "review", "sample", "neighbours", "carried"};
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        "Carries the table lines of a catalog release over to the next release, with a person who "
        "decides.");
    parser.addPositionalArgument("mapping", "Mapping file to open.", "[mapping]");
    parser.addOptions({
        {{"h", "help"}, "Shows this text."},
        {"version", "Shows the version."},
        {"source", "Directory that holds the old release's catalog.", "ROOT"},
        {"target", "Directory that holds the new release's catalog.", "ROOT"},
        {"release", "Source date of the release to open; the last one of the file by default.",
         "DATE"},
        {"read-only", "Opens the mapping file for reading only."},
        {"select", "Selects a project by its source path.", "PATH"},
        {"line", "Selects a line of that project by its number.", "N"},
        {"script",
         "Runs a script and ends with its status; the arguments are the script's then, those that "
         "begin with - behind \"--\".",
         "FILE"},
        {"mapping", "Mapping file to open for the script.", "FILE"},
        {"output", "File that the script may write.", "FILE"},
        {"screenshot", "Renders the editor into a PNG file, without a display, and ends.", "FILE"},
        {"dialog", "Renders a dialog instead: " + dialogs().join(" or ") + ".", "DIALOG"},
        {"text",
         "Text in that dialog; for links, proof and documents the link database, for script a "
         "file.",
         "TEXT"},
        {"size", "Size of the window, such as 1400x900.", "WxH"},
        {"scale", "Pixels for a length of 1 in a screenshot: 1 or 2.", "N", "1"},
        {"theme", "light, dark or contrast.", "THEME"},
        {"language", "One of " + EditorLanguages::all().join(", ") + ".", "LANGUAGE"},
        {"settings", "Directory of settings and journals; the user's own by default.", "DIR"},
    });
}

QSize sizeOf(const QString &text)
{
    return {text.section('x', 0, 0).toInt(), text.section('x', 1).toInt()};
}

/// What is wrong with the values, or nothing.
QString wrongValue(const QCommandLineParser &parser, const StartOptions &options)
{
    const auto wrong = [&parser](const QString &option, const QString &wanted) {
        return "--" + option + " is not " + wanted + ": " + parser.value(option);
    };
    if (options.script.isEmpty() && (parser.isSet("mapping") || parser.isSet("output")))
        return "--mapping and --output are for --script only";
    if (!options.script.isEmpty() && !options.screenshot.isEmpty())
        return "--script and --screenshot exclude each other";
    if (options.script.isEmpty() && parser.positionalArguments().size() > 1)
        return "more than one mapping file: " + parser.positionalArguments().join(", ");
    if (parser.isSet("line") && options.selectedLine < 0)
        return wrong("line", "the number of a line");
    if (parser.isSet("size") && options.size.isEmpty())
        return wrong("size", "of the form WxH");
    if (options.scale != 1 && options.scale != 2)
        return wrong("scale", "1 or 2");
    if (parser.isSet("dialog") && !dialogs().contains(options.dialog))
        return wrong("dialog", dialogs().join(" or "));
    if (!options.theme.isEmpty() &&
        !QStringList{"light", "dark", "contrast"}.contains(options.theme))
        return wrong("theme", "light, dark or contrast");
    if (!options.language.isEmpty() && !EditorLanguages::all().contains(options.language))
        return wrong("language", "one of " + EditorLanguages::all().join(", "));
    return {};
}

/// Before there is an application, Qt does not know the program's name.
QString helpText(const QCommandLineParser &parser)
{
    QString text = parser.helpText();
    const qsizetype name = text.indexOf(u' ') + 1;
    return text.replace(name, text.indexOf(QStringLiteral(" [options]")) - name,
                        QStringLiteral("velkworkbench"));
}

} // namespace

StartOptions StartOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    StartOptions options;
    const auto end = [&options](Outcome how, const QString &what) {
        options.outcome = how;
        options.text = what;
        return options;
    };
    if (!parser.parse(QStringList("velkworkbench") + arguments))
        return end(Outcome::Wrong, parser.errorText());
    if (parser.isSet("help"))
        return end(Outcome::Over, helpText(parser));
    if (parser.isSet("version"))
        return end(Outcome::Over, "velkworkbench " + velkVersion() + '\n');

    options.script = parser.value("script");
    options.scriptOutput = parser.value("output");
    if (options.script.isEmpty())
        options.mappingFile = parser.positionalArguments().value(0);
    else {
        options.mappingFile = parser.value("mapping");
        options.scriptArguments = parser.positionalArguments();
    }
    options.sourceRoot = parser.value("source");
    options.targetRoot = parser.value("target");
    options.release = parser.value("release");
    options.selectedPath = parser.value("select");
    options.screenshot = parser.value("screenshot");
    options.dialog = parser.value("dialog");
    options.dialogText = parser.value("text");
    options.theme = parser.value("theme");
    options.language = parser.value("language");
    options.settingsDirectory = parser.value("settings");
    options.readOnly = parser.isSet("read-only");
    options.scale = parser.value("scale").toInt();
    if (parser.isSet("size"))
        options.size = sizeOf(parser.value("size"));
    if (parser.isSet("line")) {
        bool isNumber = false;
        const int line = parser.value("line").toInt(&isNumber);
        options.selectedLine = isNumber ? line : -1;
    }
    if (const QString wrong = wrongValue(parser, options); !wrong.isEmpty())
        return end(Outcome::Wrong, wrong);
    return options;
}

void StartOptions::prepareEnvironment() const
{
    if (screenshot.isEmpty())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}
