#pragma once

#include "ViewTables.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

/// The table of screws, and an image for its states.
class ScrewsFixture
{
protected:
    /// The image of states; once for all tests.
    void makeImage()
    {
        m_image = m_dir.filePath("state.png");
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(m_image));
    }

    QTemporaryDir m_dir;
    QString m_image;
    VKTab::ContentRef m_table;
};
