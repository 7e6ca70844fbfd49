// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"
#include "overlay/tool_file.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/dialogs.h"
#include "tests/support/full_disk.h"

#include <QClipboard>
#include <QMenu>
#include <QMessageBox>

/// Measurements on their way to files, to the clipboard and to the next photograph, and back.
class MeasurementMenuTest : public testing::ToolKeysTest
{
    Q_OBJECT

    std::unique_ptr<testing::Folder> folder;

    /// The entry of the picture's menu that has this text, and whether it is possible now.
    QAction* entry(const char* text) const
    {
        window->commands().showPictureMenu({});
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QAction* found = nullptr;
        for (QAction* action : menu->actions()) {
            if (action->text() == QString::fromUtf8(text))
                found = action;
        }
        m_wasPossible = found && found->isEnabled();
        menu->close();
        return found;
    }
    bool isPossible(const char* text) const
    {
        entry(text);
        return m_wasPossible;
    }
    mutable bool m_wasPossible = false;

    QFileDialog* fileDialog() const { return window->findChild<QFileDialog*>(); }
    QMessageBox* message() const { return window->findChild<QMessageBox*>(); }
    void choose(const char* text, const QString& path) const
    {
        entry(text)->trigger();
        QVERIFY(fileDialog() && fileDialog()->isVisible() && fileDialog()->isModal());
        testing::choose(*fileDialog(), path);
        QTRY_VERIFY(!fileDialog());
        QApplication::setActiveWindow(window.get()); // as a window manager does
    }
    QByteArray json() const { return overlay::toolsToJson(window->commands().state().tools); }
    void takeMessage(const QString& beginning) const
    {
        QTRY_VERIFY(message() && message()->isVisible());
        QCOMPARE(message()->windowTitle(), QStringLiteral("警告"));
        QVERIFY(message()->textFormat() == Qt::PlainText);
        if (!message()->text().startsWith(beginning))
            QCOMPARE(message()->text(), beginning);
        message()->accept();
        QTRY_VERIFY(!message());
        QApplication::setActiveWindow(window.get());
    }
    void start()
    {
        folder = std::make_unique<testing::Folder>();
        begin();
    }
    void reopen()
    {
        window = std::make_unique<Analysis_Widget>();
        begin();
    }

private slots:
    void whatIsSavedIsLoadedByteForByte()
    {
        start();
        drawOneOfEach();
        label().toolColor = Qt::blue;
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        click("pushButton_9");
        const QByteArray saved = json();
        choose("保存测量...", *folder / QStringLiteral("one")); // gets its suffix
        QCOMPARE(folder->files(), QStringList{QStringLiteral("one.json")});
        QCOMPARE(folder->read(QStringLiteral("one.json")), saved);

        reopen();
        choose("加载测量...", *folder / QStringLiteral("one.json"));
        QCOMPARE(names(), QStringLiteral("P0 P1 L0 R0 C0"));
        QCOMPARE(json(), saved);
        QVERIFY(label().pointList.at(1).colour == QColor(Qt::blue));
        QCOMPARE(marked(), QString());
        undo();
        QCOMPARE(names(), QString());
        redo();
        QCOMPARE(json(), saved);
    }

    void loadingReplacesWhatIsThere()
    {
        start();
        drawOneOfEach();
        folder->write(QStringLiteral("a.json"), R"({"points": [[1, 2], [3, 4]]})");
        choose("加载测量...", *folder / QStringLiteral("a.json"));
        QCOMPARE(names(), QStringLiteral("P0 P1"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void theFileIsOfferedInTheDocumentsFolder()
    {
        start();
        drawOneOfEach();
        entry("保存测量...")->trigger();
        QCOMPARE(fileDialog()->selectedFiles().value(0),
                 testing::profile().home() + QStringLiteral("/Documents/shot.json"));
        fileDialog()->reject();
        QTRY_VERIFY(!fileDialog());
    }

    void whatCannotBeLoadedIsToldAndChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no JSON") << QByteArray("points: 1, 2");
        QTest::newRow("unknown key") << QByteArray(R"({"triangles": []})");
        QTest::newRow("outside") << QByteArray(R"({"points": [[1, 2], [3, 400]]})");
        QTest::newRow("nothing at all") << QByteArray();
        QByteArray many = R"({"points": [)";
        for (int i = 0; i < 1000; ++i)
            many += "[1, 2], ";
        QTest::newRow("too many") << many + "[1, 2]]}";
        QTest::newRow("too large") << QByteArray(10'000'001, ' ');
    }
    void whatCannotBeLoadedIsToldAndChangesNothing()
    {
        QFETCH(const QByteArray, bytes);
        start();
        drawOneOfEach();
        const auto drawn = static_cast<const overlay::Tools&>(label());
        const QString path = folder->write(QStringLiteral("bad.json"), bytes);
        choose("加载测量...", path);
        takeMessage(QStringLiteral("未能从文件“") + QDir::toNativeSeparators(path) +
                    QStringLiteral("”加载测量，现有工具保持不变。\n"));
        QVERIFY(label() == drawn);
        // And is no step.
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
    }

    void aFullDiskIsToldAndTheOldFileStays()
    {
        start();
        drawOneOfEach();
        folder->write(QStringLiteral("a.json"), "old");
        const testing::Answer<QMessageBox> replace(
            [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        {
            const testing::FullDisk full(10);
            choose("保存测量...", *folder / QStringLiteral("a.json"));
        }
        QVERIFY(replace.wasAsked());
        takeMessage(QStringLiteral("文件“") +
                    QDir::toNativeSeparators(*folder / QStringLiteral("a.json")) +
                    QStringLiteral("”未能写入，原有文件保持不变。\n无法写入（"));
        QCOMPARE(folder->files(), QStringList{QStringLiteral("a.json")});
        QCOMPARE(folder->read(QStringLiteral("a.json")), QByteArray("old"));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void aFolderThatIsGoneIsTold()
    {
        start();
        drawOneOfEach();
        entry("保存测量...")->trigger();
        const QString path = *folder / QStringLiteral("a.json");
        emit fileDialog()->fileSelected(QStringLiteral("/gone") + path);
        takeMessage(QStringLiteral("文件“/gone") + path);
        fileDialog()->reject();
        QTRY_VERIFY(!fileDialog());
    }

    void theWindowMayGoWhileADialogIsOpen()
    {
        start();
        drawOneOfEach();
        QWidget frame;
        window->setParent(&frame);
        frame.show();
        window->show();
        entry("加载测量...")->trigger();
        const QPointer<QFileDialog> dialog = frame.findChild<QFileDialog*>();
        QVERIFY(dialog);
        window.reset();
        QTRY_VERIFY(!dialog);
    }

    void theLastMeasurementsApplyToTheNextPhotograph()
    {
        start();
        drawOneOfEach();
        const QByteArray drawn = json();
        reopen();
        QVERIFY(isPossible("应用上次的测量"));
        QVERIFY(!isPossible("保存测量..."));
        // A photograph that was only looked at takes nothing away.
        reopen();
        entry("应用上次的测量")->trigger();
        QCOMPARE(json(), drawn);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        undo();
        QCOMPARE(names(), QString());
    }

    void whatIsCopiedIsPastedBesideWhatIsThere()
    {
        start();
        drawOneOfEach();
        key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().toUtf8(), json());
        click("pushButton_8"); // a prepared tool is in nobody's way
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(names(), QStringLiteral("P0 P1 L0 L1 R0 R1 C0 C1"));
        QCOMPARE(marked(), QStringLiteral("C1"));
        overlay::PointTool copy = label().pointList.at(1);
        copy.name = QStringLiteral("P0");
        QVERIFY(copy == label().pointList.at(0));
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        QCOMPARE(names(), QStringLiteral("P0 P1 P2 L0 L1 R0 R1 C0 C1"));
        undo();
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void whatIsPastedTakesFreeNames()
    {
        start();
        drawOneOfEach();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        key(Qt::Key_PageUp);
        key(Qt::Key_Delete); // P0, P1 stays
        QCOMPARE(names(), QStringLiteral("P1 L0 R0 C0"));
        QGuiApplication::clipboard()->setText(
            QStringLiteral(R"({"points": [[7, 8], [9, 9]], "names": ["P1", "P2"]})"));
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(names(), QStringLiteral("P0 P1 P2 L0 R0 C0"));
        QCOMPARE(label().pointList.at(0).x, 7);
        QCOMPARE(label().pointList.at(1).x, 20);
        QCOMPARE(label().pointList.at(2).x, 9);
    }

    void whatIsNoMeasurementIsNotPasted()
    {
        start();
        drawOneOfEach();
        QGuiApplication::clipboard()->clear();
        QVERIFY(!isPossible("粘贴"));
        QGuiApplication::clipboard()->setText(QStringLiteral("25.3"));
        QVERIFY(isPossible("粘贴"));
        entry("粘贴")->trigger();
        takeMessage(QStringLiteral("剪贴板中没有测量数据。\n"));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        // Without tools there is nothing to copy over what is in the clipboard.
        click("pushButton_2");
        key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("25.3"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<MeasurementMenuTest>(argc, argv);
}

#include "measurement_menu_test.moc"
