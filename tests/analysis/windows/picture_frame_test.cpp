// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_frame.h"
#include "tests/support/test_run.h"

/// What surrounds the picture.
class PictureFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void theLabelIsAlwaysWiderThanThePicture()
    {
        PictureFrame frame;
        QWidget inside(&frame);
        for (int width = 1; width < 900; width += 7) {
            for (int height = 1; height < 1300; height += 5) {
                frame.resize(width, height);
                QResizeEvent resized(frame.size(), QSize());
                QCoreApplication::sendEvent(&frame, &resized);
                QCOMPARE(inside.width(), width);
                QVERIFY(inside.height() <= height);
                const QSize picture = QSize(240, 320).scaled(inside.size(), Qt::KeepAspectRatio);
                if (picture.width() >= inside.width())
                    QFAIL(qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
            }
        }
        frame.resize(480, 640);
        QResizeEvent resized(frame.size(), QSize());
        QCoreApplication::sendEvent(&frame, &resized);
        QCOMPARE(inside.height(), 639);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureFrameTest>(argc, argv);
}

#include "picture_frame_test.moc"
