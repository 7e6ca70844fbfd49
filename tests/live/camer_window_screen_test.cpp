// SPDX-License-Identifier: MIT
// The live page on the whole screen and back, and its end.
#include "tests/live/camera.h"
#include "tests/live/owner.h"
#include "tests/support/test_run.h"

#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include <functional>

using testing::camera;
using testing::deliver;
using testing::Owner;
using testing::Page;

namespace {

QPoint inWindow(const Page& page, const QPoint& inPicture)
{
    return page.get<QLabel>("label_17")->mapTo(&page.window(), inPicture);
}

void doubleClick(const Page& page, const QPoint& inPicture)
{
    QTest::mouseDClick(&page.window(), Qt::LeftButton, Qt::NoModifier, inWindow(page, inPicture));
}

} // namespace

class CamerWindowScreenTest : public testing::CameraPageTest
{
    Q_OBJECT

private slots:
    void doubleClickStrictlyInside_data();
    void doubleClickStrictlyInside();
    void doubleClickOnThePictureItself();
    void doubleClickElsewhere();
    void fullScreenAndBack();
    void escapeWhileEmbedded();
    void closingStopsEverything();
    void afterClosingSlotsDoNothing();
    void endsInAnyOrder_data();
    void endsInAnyOrder();
};

void CamerWindowScreenTest::doubleClickStrictlyInside_data()
{
    // Corners of the picture label: which border a point lies on, and how far inside.
    QTest::addColumn<bool>("right");
    QTest::addColumn<bool>("bottom");
    QTest::addColumn<QPoint>("inside");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("left border") << false << false << QPoint(0, 10) << false;
    QTest::newRow("top border") << false << false << QPoint(10, 0) << false;
    QTest::newRow("right of it") << true << false << QPoint(0, 10) << false;
    QTest::newRow("below it") << false << true << QPoint(10, 0) << false;
    QTest::newRow("first pixel inside") << false << false << QPoint(1, 1) << true;
    QTest::newRow("last pixel inside") << true << true << QPoint(1, 1) << true;
}

void CamerWindowScreenTest::doubleClickStrictlyInside()
{
    QFETCH(bool, right);
    QFETCH(bool, bottom);
    QFETCH(QPoint, inside);
    QFETCH(bool, toggles);
    Page page;
    const Owner owner(page);
    const QSize size = page.get<QLabel>("label_17")->size();
    doubleClick(page, QPoint(right ? size.width() - inside.x() : inside.x(),
                             bottom ? size.height() - inside.y() : inside.y()));
    QCOMPARE(page->isFull, toggles);
}

void CamerWindowScreenTest::doubleClickOnThePictureItself()
{
    Page page;
    const Owner owner(page);
    auto* const label = page.get<QLabel>("label_17");
    QTest::mouseDClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(0, 30));
    QVERIFY(!page->isFull);
    QTest::mouseDClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(30, 30));
    QVERIFY(page->isFull);
}

void CamerWindowScreenTest::doubleClickElsewhere()
{
    Page page;
    const Owner owner(page);
    QTest::mouseDClick(page.get<QLabel>("label_2"), Qt::LeftButton);
    QVERIFY(!page->isFull);
    // Where the picture would be, but the history is in front.
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    doubleClick(page, page.get<QLabel>("label_17")->rect().center());
    QVERIFY(!page->isFull);
}

void CamerWindowScreenTest::fullScreenAndBack()
{
    Page page;
    const Owner owner(page);
    for (int round = 1; round <= 2; ++round) {
        QVERIFY(deliver());
        doubleClick(page, {30, 30});
        QVERIFY(page->isFull && page->isFullScreen() && page->isVisible());
        QCOMPARE(page->parentWidget(), nullptr);
        QCOMPARE(owner.heard.size(), 2 * round - 2);
        QVERIFY(deliver());

        doubleClick(page, {30, 30});
        QVERIFY(!page->isFull && !page->isFullScreen());
        QCOMPARE(page->parentWidget(), &owner);
        QVERIFY(page->isVisible());
        QCOMPARE(owner.heard.size(), 2 * round - 1);

        doubleClick(page, {30, 30});
        const testing::LogRecorder log;
        QTest::keyClick(&page.window(), Qt::Key_Escape);
        QVERIFY(log.contains(QStringLiteral("您按下了ESC")));
        QVERIFY(!page->isFull);
        QCOMPARE(page->parentWidget(), &owner);
        QCOMPARE(owner.heard.size(), 2 * round);
    }
    QVERIFY(!owner.heard.contains(true));
    QCOMPARE(owner.subWindow, QList<bool>({true, true, true, true}));
}

void CamerWindowScreenTest::escapeWhileEmbedded()
{
    Page page;
    const Owner owner(page);
    const testing::LogRecorder log;
    QTest::keyClick(&page.window(), Qt::Key_A);
    QVERIFY(!log.contains(QStringLiteral("您按下了ESC")));
    QTest::keyClick(&page.window(), Qt::Key_Escape);
    QVERIFY(log.contains(QStringLiteral("您按下了ESC")));
    QCOMPARE(owner.heard, QList<bool>());
    QCOMPARE(page->parentWidget(), &owner);
}

void CamerWindowScreenTest::closingStopsEverything()
{
    const Page page;
    page->show();
    page.check("checkBox");
    page->updat_temp(50, 40, 1);
    QVERIFY(page->warnTimer->isActive());
    QVERIFY(page->close());
    QVERIFY(!page->isOpen());
    QVERIFY(!page->warnTimer->isActive());
    QVERIFY(!page->healthTimer->isActive());
    QVERIFY(!camera().isRunning());
    QVERIFY(!deliver());
    page->close();
    QCloseEvent again;
    QCoreApplication::sendEvent(&page.window(), &again);
    QVERIFY(!page->isOpen());
}

void CamerWindowScreenTest::afterClosingSlotsDoNothing()
{
    const Page page;
    page->show();
    page.get<QListWidget>("listWidget_2")->addItem(QStringLiteral("20240101120000"));
    QListWidgetItem* const item = page.get<QListWidget>("listWidget_2")->item(0);
    QVERIFY(page->close());
    page.frames(8, 50);
    page->timeout_warn();
    page->timeout_connect();
    page->on_pushButton_clicked();
    page->on_pushButton_2_clicked();
    page->on_checkBox_stateChanged(Qt::Checked);
    page->on_checkBox_2_stateChanged(Qt::Checked);
    page->on_checkBox_3_stateChanged(Qt::Checked);
    page->on_listWidget_itemClicked(item);
    page->on_listWidget_itemDoubleClicked(item);
    page->on_listWidget_2_itemClicked(item);
    page->on_listWidget_3_currentRowChanged(0);
    page->saveAlarmRecord();
    page->reopenCamera();
    page->setAlarmFolder(QStringLiteral("elsewhere"));
    page->refreshHistory();
    QTest::keyClick(&page.window(), Qt::Key_Escape);
    QTest::mouseDClick(&page.window(), Qt::LeftButton, Qt::NoModifier, {100, 100});
    page->grab();
    QVERIFY(page->currentPixmap.isNull());
    QVERIFY(!page->alarmEnabled && !page->soundEnabled && !page->alarmFilesEnabled);
    QVERIFY(!page->isFull && !page->alarmSilenced);
    QCOMPARE(page->historyRow, -1);
    QVERIFY(!camera().isRunning());
}

void CamerWindowScreenTest::endsInAnyOrder_data()
{
    QTest::addColumn<QString>("events");
    for (const char* events :
         {"close frame delete", "delete frame", "full delete frame", "full close frame delete",
          "unplug close delete", "unplug delete", "full unplug health back delete",
          "full unplug health close delete", "error health close plug delete",
          "unplug plug reopen frame delete", "close reopen frame delete",
          "close close frame delete", "unplug reopen close delete", "alarm close delete",
          "alarm delete", "alarm full delete"})
        QTest::newRow(events) << QString::fromLatin1(events);
}

void CamerWindowScreenTest::endsInAnyOrder()
{
    QFETCH(QString, events);
    Page page;
    QWidget parent;
    page->setParent(&parent);
    parent.show();
    QVERIFY(deliver());
    const QHash<QString, std::function<void()>> actions{{QStringLiteral("close"),
                                                         [&] {
                                                             page->close();
                                                         }},
                                                        {QStringLiteral("delete"),
                                                         [&] {
                                                             page.destroy();
                                                         }},
                                                        {QStringLiteral("frame"),
                                                         [&] {
                                                             deliver();
                                                         }},
                                                        {QStringLiteral("full"),
                                                         [&] {
                                                             page->toggleFullScreen(false);
                                                         }},
                                                        {QStringLiteral("back"),
                                                         [&] {
                                                             page->toggleFullScreen(true);
                                                         }},
                                                        {QStringLiteral("unplug"),
                                                         [&] {
                                                             camera().unplug();
                                                         }},
                                                        {QStringLiteral("plug"),
                                                         [&] {
                                                             camera().plug();
                                                         }},
                                                        {QStringLiteral("error"),
                                                         [&] {
                                                             camera().reportError();
                                                         }},
                                                        {QStringLiteral("health"),
                                                         [&] {
                                                             page->timeout_connect();
                                                         }},
                                                        {QStringLiteral("reopen"),
                                                         [&] {
                                                             page->reopenCamera();
                                                         }},
                                                        {QStringLiteral("alarm"), [&] {
                                                             page.check("checkBox");
                                                             page.check("checkBox_2");
                                                             page->updat_temp(50, 40, 1);
                                                             page->timeout_warn();
                                                         }}};
    for (const QString& event : events.split(QLatin1Char(' '))) {
        QVERIFY(actions.contains(event));
        actions[event]();
        QCoreApplication::processEvents();
    }
    QVERIFY(!camera().isRunning());
    QVERIFY(!deliver());
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowScreenTest>(argc, argv);
}

#include "camer_window_screen_test.moc"
