#pragma once

#include <QMap>
#include <QString>

/// Values of a document record by upper-case column name; in this form forms, database and scripts
/// exchange them.
using ValueMap = QMap<QString, QString>;
