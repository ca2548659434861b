#pragma once

class QString;

/// From now on the texts of the program, of its libraries and of Qt are in this language, and so
/// are numbers and times. Windows that are open hear of it. GUI thread.
void useLanguage(const QString &language);
