#pragma once

#include "RecordSamples.h"

#include <QFile>
#include <QTest>

/// Mapping files as texts, for tests of reading and writing.
namespace MappingFileSample {

/// A file of one release with one mapping; `%` stands for what a test puts in its place.
inline const QByteArray Sound = R"({
 "2022": {
  "sourceDate": "2022",
  "targetDate": "2026",
  "mappings": [
   {
    "sourcePath": "cat/a.prj",
    "sourceVersion": "v1",
    "tabVersion": "v2",
    "state": 2,
    "targets": [
     {
      "path": "cat/b.prj",
      "version": "v3",
      "tabVersion": "v4",
      "valid": true,
      "conditions": ["D .EQ. 4"],
      "modifiers": [
       {
        "kind": "var",
        "source": "A",
        "target": "B"
       }
      ],
      "lines": [
       [1,10,1],
       [2,-1,0,"text",true]
      ]
     }
    ]
   }
  ]
 }
}
)";

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

inline ReleaseMappingC sampleRelease(const QString &date, quint32 seed)
{
    QRandomGenerator random(seed);
    return RecordSamples::randomRelease(random, date);
}

} // namespace MappingFileSample
