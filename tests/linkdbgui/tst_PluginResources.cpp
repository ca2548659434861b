#include <gui/application/PApplication.h>

#include <QAbstractButton>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QFile>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSplitter>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include <core/plugin/PTranslateManager.h>
#include <TestPaths.h>

#include <cmath>
#include <memory>

class tst_PluginResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void versionOfTheTree();
    void forms();
    void bitmaps();
    void catalogs();
    void hostIcons();
    void bitmap_data();
    void bitmap();
    void statesDiffer();
    void classificationDialog();
    void newRecordDialog();
    void documentListDialog();
    void buttonsOfTheDocumentListDialog();
    void formsAreTranslated();
    void contextOfACatalog_data();
    void contextOfACatalog();
    void sameSources_data();
    void sameSources();
    void texts_data();
    void texts();
};

namespace {

const QStringList stateBitmaps{
    QStringLiteral("state_check"),    QStringLiteral("state_confirmed"),
    QStringLiteral("state_deleted"),  QStringLiteral("state_deleted_confirmed"),
    QStringLiteral("state_conflict"), QStringLiteral("error")};

const QStringList otherBitmaps{QStringLiteral("add"),
                               QStringLiteral("arrow_refresh"),
                               QStringLiteral("line"),
                               QStringLiteral("double_check"),
                               QStringLiteral("remove_verify"),
                               QStringLiteral("confirm_mapping"),
                               QStringLiteral("assistant/arrow_up"),
                               QStringLiteral("assistant/arrow_down")};

const QStringList languages =
    QStringLiteral("cs da de en es fi fr hu id it ja ko nb pl pt ru sl sv tr zh zh_CHT")
        .split(u' ');

/// Paths of all files below a folder, relative to it, sorted.
QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files << iterator.next().mid(folder.size() + 1);
    files.sort();
    return files;
}

/// A bitmap's names for both pixel ratios.
QStringList bitmapFiles(const QStringList &names)
{
    QStringList files;
    for (const QString &name : names)
        files << name + QStringLiteral(".png") << name + QStringLiteral("@2x.png");
    files.sort();
    return files;
}

double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor blended(const QColor &color, const QColor &ground)
{
    const float a = color.alphaF();
    return QColor::fromRgbF(color.redF() * a + ground.redF() * (1 - a),
                            color.greenF() * a + ground.greenF() * (1 - a),
                            color.blueF() * a + ground.blueF() * (1 - a));
}

/// Share of the picture's area that stands out from the ground, with the contrast of 3 to 1 that
/// WCAG 2.1 asks for in graphics.
double visibleShare(const QImage &image, const QColor &ground)
{
    const double groundLuminance = luminance(ground);
    int visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double pixel = luminance(blended(image.pixelColor(x, y), ground));
            const double brighter = std::max(pixel, groundLuminance);
            const double darker = std::min(pixel, groundLuminance);
            visible += (brighter + 0.05) / (darker + 0.05) >= 3 ? 1 : 0;
        }
    }
    return double(visible) / (image.width() * image.height());
}

std::unique_ptr<QWidget> form(const char *path)
{
    return std::unique_ptr<QWidget>(
        PApplication::createWidget(QString::fromUtf8(path), nullptr, false));
}

template<class Widget>
QString textOf(const QWidget &parent, const char *name)
{
    const auto *const widget = parent.findChild<Widget *>(QString::fromUtf8(name));
    return widget ? widget->text() : QStringLiteral("no %1").arg(QString::fromUtf8(name));
}

QString toolTipOf(const QWidget &parent, const char *name)
{
    const auto *const widget = parent.findChild<QWidget *>(QString::fromUtf8(name));
    return widget ? widget->toolTip() : QStringLiteral("no %1").arg(QString::fromUtf8(name));
}

bool hasOkAndCancel(const QWidget &parent)
{
    const auto *const box = parent.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    return box && box->standardButtons() == (QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

/// Placeholders and line breaks, which a translation has to keep.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression fixed(QStringLiteral("%\\d|\\n|<br ?/>"));
    QStringList parts;
    QRegularExpressionMatchIterator matches = fixed.globalMatch(text);
    while (matches.hasNext())
        parts << matches.next().captured();
    parts.sort();
    return parts;
}

struct Message
{
    QString source;
    QString translation;
};

QList<Message> messagesOf(const QString &language)
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/translations/VelkLinkDbGui_%1.ts").arg(language));
    QList<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source"))
            messages.append({reader.readElementText(), {}});
        else if (reader.name() == QLatin1String("translation"))
            messages.last().translation = reader.readElementText();
    }
    return messages;
}

} // namespace

void tst_PluginResources::init()
{
    PTranslateManager::instance().setLanguage({});
}

void tst_PluginResources::versionOfTheTree()
{
    QFile file(QStringLiteral(VELK_BINARY_DIR "/linkdbgui/resources/VelkLinkDbGuiResources.inc"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray source = file.readAll();
    QCOMPARE(source.count("int version = "), 2); // registration and release
    QCOMPARE(source.count("int version = 1;"), 2);
}

void tst_PluginResources::forms()
{
    const QStringList expected{QStringLiteral("ClassificationDialog.ui"),
                               QStringLiteral("DocumentListDialog.ui"),
                               QStringLiteral("NewRecordDialog.ui")};
    QCOMPARE(filesBelow(QStringLiteral(":/forms/linkdbgui")), expected);
}

void tst_PluginResources::bitmaps()
{
    QStringList files = filesBelow(QStringLiteral(":/bitmaps"));
    files.removeIf([](const QString &file) { return file.startsWith(QLatin1String("linkdb/")); });
    QCOMPARE(files, bitmapFiles(stateBitmaps + otherBitmaps));
}

void tst_PluginResources::catalogs()
{
    QStringList expected;
    for (const QString &language : languages)
        expected << QStringLiteral("VelkLinkDbGui_%1.qm").arg(language);
    expected.sort();
    QStringList files = filesBelow(QStringLiteral(":/translations"));
    files.removeIf([](const QString &file) { return !file.startsWith(u"VelkLinkDbGui_"); });
    QCOMPARE(files, expected); // the libraries have their own ones beside
}

/// They are no part of the plug-in's tree, and the host has what the plug-in uses.
void tst_PluginResources::hostIcons()
{
    QCOMPARE(filesBelow(QStringLiteral(":/bitmaps/linkdb")).size(), 20);
    const QStringList tools{
        QStringLiteral("actionFileNew_16"), QStringLiteral("actionFormatAlgorithm_16"),
        QStringLiteral("actionFormatRanges_16"), QStringLiteral("actionSketchCancel_24")};
    QCOMPARE(filesBelow(QStringLiteral(":/toolicons")), bitmapFiles(tools));
    QCOMPARE(filesBelow(QStringLiteral(":/hostbitmaps")),
             bitmapFiles({QStringLiteral("indextree/state_deleted")}));
    QFile source(QStringLiteral(VELK_BINARY_DIR "/linkdbgui/resources/VelkLinkDbGui.qrc"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray tree = source.readAll();
    QVERIFY(!tree.contains("linkdb/action"));
    QVERIFY(!tree.contains("toolicons"));
}

void tst_PluginResources::bitmap_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    for (const QString &name : stateBitmaps + otherBitmaps)
        QTest::newRow(qPrintable(name)) << QStringLiteral(":/bitmaps/%1.png").arg(name) << 16;
    for (const char *folder : {":/bitmaps/linkdb", ":/toolicons", ":/hostbitmaps"}) {
        const QString path = QString::fromUtf8(folder);
        for (const QString &file : filesBelow(path).filter(QRegularExpression("^[^@]*$"))) {
            const int size = file.contains(QLatin1String("_24")) ? 24 : 16;
            QTest::newRow(qPrintable(file)) << path + u'/' + file << size;
        }
    }
}

void tst_PluginResources::bitmap()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    const QImage image(path);
    QCOMPARE(image.size(), QSize(size, size));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    const QString large = QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
    QCOMPARE(QImage(large).size(), QSize(2 * size, 2 * size));
    QVERIFY2(visibleShare(image, Qt::white) > 0.14, qPrintable(path));
    QVERIFY2(visibleShare(image, QColor(0x2b, 0x2b, 0x2b)) > 0.14, qPrintable(path));
}

void tst_PluginResources::statesDiffer()
{
    QList<QImage> images;
    for (const QString &name : stateBitmaps) {
        const QImage image(QStringLiteral(":/bitmaps/%1.png").arg(name));
        QVERIFY(!image.isNull());
        QVERIFY(!images.contains(image));
        images << image;
    }
}

void tst_PluginResources::classificationDialog()
{
    const PApplication host({});
    const auto widget = form("forms:linkdbgui/ClassificationDialog.ui");
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), "QWidget");
    QCOMPARE(widget->objectName(), QStringLiteral("ClassifyDialog"));
    QCOMPARE(widget->windowTitle(), QStringLiteral("Klassifizieren"));
    const auto *const title = widget->findChild<QLineEdit *>(QStringLiteral("title"));
    QVERIFY(title);
    QVERIFY(title->isReadOnly());
    const auto *const place = widget->findChild<QWidget *>(QStringLiteral("widget"));
    QVERIFY(place);
    QCOMPARE(place->metaObject()->className(), "QWidget");
    QVERIFY(hasOkAndCancel(*widget));
}

void tst_PluginResources::newRecordDialog()
{
    const PApplication host({});
    const auto widget = form("forms:linkdbgui/NewRecordDialog.ui");
    QVERIFY(widget);
    QCOMPARE(widget->windowTitle(), QStringLiteral("Neuen Datensatz anlegen"));
    QCOMPARE(widget->size(), QSize(411, 231));
    const auto *const grid = widget->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    QVERIFY(grid);
    QCOMPARE(grid->count(), 0);
    const auto *const layout = qobject_cast<QVBoxLayout *>(widget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->layout(), grid);
    QVERIFY(layout->itemAt(1)->spacerItem());
    QVERIFY(layout->itemAt(1)->expandingDirections().testFlag(Qt::Vertical));
    QVERIFY(hasOkAndCancel(*widget));
}

void tst_PluginResources::documentListDialog()
{
    const PApplication host({});
    const auto widget = form("forms:linkdbgui/DocumentListDialog.ui");
    QVERIFY(widget);
    QCOMPARE(widget->windowTitle(), QStringLiteral("Dokument-Liste"));
    QCOMPARE(widget->size(), QSize(794, 512));
    const auto *const layout = qobject_cast<QVBoxLayout *>(widget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 4);
    QCOMPARE(layout->itemAt(0)->widget(), widget->findChild<QLabel *>(QStringLiteral("lbInfo")));
    QVERIFY(layout->itemAt(1)->layout());
    const auto *const splitter = widget->findChild<QSplitter *>(QStringLiteral("splitter"));
    QCOMPARE(layout->itemAt(2)->widget(), splitter);
    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), widget->findChild<QTreeWidget *>(QStringLiteral("tvDocuments")));
    const QWidget *const below = splitter->widget(1);
    QVERIFY(below->findChild<QTreeWidget *>(QStringLiteral("tvVarset")));
    QCOMPARE(textOf<QLabel>(*below, "lbVarset"),
             QStringLiteral("XVARSET des markierten Dokuments:"));
    QCOMPARE(layout->itemAt(3)->widget(),
             widget->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox")));
    QVERIFY(hasOkAndCancel(*widget));
}

void tst_PluginResources::buttonsOfTheDocumentListDialog()
{
    const PApplication host({});
    const auto widget = form("forms:linkdbgui/DocumentListDialog.ui");
    QVERIFY(widget);
    const QLayout *const row = widget->layout()->itemAt(1)->layout();
    QCOMPARE(row->count(), 4);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(1)->widget()->objectName(), QStringLiteral("btnCreate"));
    QCOMPARE(row->itemAt(2)->widget()->objectName(), QStringLiteral("btnEdit"));
    QCOMPARE(row->itemAt(3)->widget()->objectName(), QStringLiteral("btnDelete"));
    QCOMPARE(textOf<QAbstractButton>(*widget, "btnCreate"), QStringLiteral("Neu..."));
    QCOMPARE(textOf<QAbstractButton>(*widget, "btnEdit"), QStringLiteral("Bearbeiten..."));
    QCOMPARE(textOf<QAbstractButton>(*widget, "btnDelete"), QStringLiteral("Löschen"));
    QCOMPARE(toolTipOf(*widget, "btnCreate"),
             QStringLiteral("Neuen Datensatz einfügen (übernimmt die Werte des markierten "
                            "Datensatzes)"));
    QCOMPARE(toolTipOf(*widget, "btnEdit"), QString());
    QCOMPARE(toolTipOf(*widget, "btnDelete"), QStringLiteral("Datensatz löschen"));
}

void tst_PluginResources::formsAreTranslated()
{
    const PApplication host({});
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    QCOMPARE(form("forms:linkdbgui/ClassificationDialog.ui")->windowTitle(),
             QStringLiteral("Classify"));
    QCOMPARE(toolTipOf(*form("forms:linkdbgui/DocumentListDialog.ui"), "btnDelete"),
             QStringLiteral("Delete record"));
}

void tst_PluginResources::contextOfACatalog_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_PluginResources::contextOfACatalog()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translations/VelkLinkDbGui_%1.qm").arg(language)));
    const QString translation = translator.translate("VelkLinkDbGui", "Gruppe auswählen");
    QVERIFY(!translation.isEmpty());
    QCOMPARE(translation == QStringLiteral("Gruppe auswählen"), language == QLatin1String("de"));
    QCOMPARE(translator.translate("LinkDbGuiC", "Gruppe auswählen"), QString());
}

void tst_PluginResources::sameSources_data()
{
    contextOfACatalog_data();
}

void tst_PluginResources::sameSources()
{
    QFETCH(QString, language);
    const auto sources = [](const QString &of) {
        QStringList texts;
        for (const Message &message : messagesOf(of))
            texts << message.source;
        return texts;
    };
    QCOMPARE(sources(language), sources(QStringLiteral("de")));
}

void tst_PluginResources::texts_data()
{
    contextOfACatalog_data();
}

void tst_PluginResources::texts()
{
    QFETCH(QString, language);
    const QList<Message> messages = messagesOf(language);
    QVERIFY(messages.size() > 80);
    const bool isComplete = language == QLatin1String("de") || language == QLatin1String("en");
    for (const Message &message : messages) {
        if (language == QLatin1String("de"))
            QCOMPARE(message.translation, message.source);
        if (message.translation.isEmpty()) {
            QVERIFY2(!isComplete, qPrintable(message.source));
            continue;
        }
        QCOMPARE(fixedParts(message.translation), fixedParts(message.source));
    }
}

QTEST_MAIN(tst_PluginResources)
#include "tst_PluginResources.moc"
