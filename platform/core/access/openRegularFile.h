#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

class QFile;

/// Opens a regular file for reading. Directories, and devices, pipes and sockets, which may block
/// or never end, are refused before they are opened; so is a name with a NUL, of which the system
/// would take the part before it. Links are followed. What stands for an address is brought first,
/// see AddressedFiles. False if the file is not open; \a problem
/// then says why.
[[nodiscard]] VELKCORE_EXPORT bool openRegularFile(QFile &file, QString &problem);
