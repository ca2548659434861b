#pragma once

#include <QString>

class EditorArea;
class LinkDbHost;

/// The documents of the line that the editor shows, in the plug-in's dialog; new ones can be made
/// there. What the dialog leaves open in the database is committed.
namespace LineDocuments {

/// Needs a project, a line and a connection. \a sourceRoot holds the old release's catalog.
void show(EditorArea *editor, const QString &sourceRoot, const LinkDbHost &host);

} // namespace LineDocuments
