#include "LinkDbActions.h"

#include <core/text/PString.h>
#include <gui/application/PApplicationPool.h>

#include <QAction>
#include <QFile>
#include <QIcon>

namespace {

constexpr const char *actionContext = "VelkLinkDbGui";

/// Texts are source texts, the icon is a resource of the host.
struct ActionDescription
{
    const char *objectName;
    const char *text;
    const char *tip;
    const char *icon;
    bool isCheckable = false;
    bool isEnabled = true;
};

const ActionDescription actions[] = {
    {"LinkDbLogin", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Login"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Benutzer authentifizieren/wechseln"),
     ":/bitmaps/linkdb/actionLinkDbLogin_24.png"},
    {"LinkDbChangeGroup", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Gruppe auswählen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Gruppe auswählen"),
     ":/bitmaps/linkdb/actionLinkDbChangeGroup_24.png"},
    {"CallLinkMgr", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Linkmanager"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Linkmanager aufrufen"),
     ":/bitmaps/linkdb/actionCallLinkMgr_24.png"},
    {"LinkDbBackToMgr", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Auswahl an Linkmanager"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Auswahl an Linkmanager senden"),
     ":/bitmaps/linkdb/actionLinkDbBackToMgr_24.png", false, false},
    {"LinkDbCancelBackToMgr", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Auswahl abbrechen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Auswahl abbrechen"),
     ":/bitmaps/linkdb/actionLinkDbCancelBackToMgr_24.png", false, false},
    {"LinkDbSendMail", QT_TRANSLATE_NOOP("VelkLinkDbGui", "ERP-Nummer beantragen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Beantragen einer ERP-Nummer per Mail"),
     ":/bitmaps/linkdb/actionLinkDbSendMail_24.png"},
    {"LinkDbAddToDb", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Datensatz hinzufügen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Datensatz zur Linkdatenbank hinzufügen"),
     ":/bitmaps/linkdb/actionLinkDbAddToDb_24.png"},
    {"LinkDbShowLegend", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Legende anzeigen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Legende anzeigen"),
     ":/bitmaps/linkdb/actionLinkDbShowLegend_24.png"},
    {"LinkDbFilteronoff", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Baum gefiltert darstellen"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Baum gefiltert darstellen"),
     ":/bitmaps/linkdb/actionLinkDbFilteronoff_24.png", true},
    // Two blanks and the long wording as text: so it is known to users and their tool bars.
    {"PreferredRanges", QT_TRANSLATE_NOOP("VelkLinkDbGui", "Vorzugsreihen  ein und ausschalten"),
     QT_TRANSLATE_NOOP("VelkLinkDbGui", "Vorzugsreihen An/Aus"),
     ":/bitmaps/linkdb/actionPreferredRanges_24.png", true},
};

/// Null for a file that is not there, so that a later registration gets its chance; Qt's own would
/// only be empty.
QIcon iconOf(const QString &file)
{
    return QFile::exists(file) ? QIcon(file) : QIcon();
}

void registerAction(PApplicationPool &pool, const ActionDescription &description)
{
    const PString tip = PString::translate(description.tip, actionContext);
    const PString text = PString::translate(description.text, actionContext);
    QAction *action = pool.registerAction(QString::fromUtf8(description.objectName), text, {});
    action->setStatusTip(tip);
    action->setToolTip(tip);
    if (action->icon().isNull())
        action->setIcon(iconOf(QString::fromUtf8(description.icon)));
    if (description.isCheckable)
        action->setCheckable(true);
    if (!description.isEnabled)
        action->setEnabled(false);
}

} // namespace

void registerLinkDbActions(PApplicationPool &pool)
{
    for (const ActionDescription &description : actions)
        registerAction(pool, description);
}
