// SPDX-License-Identifier: MIT
#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/layouts.h"
#include "analysis/photograph/photograph_reader.h"
#include "simulator/photograph.h"
#include "simulator/simulated_disk.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QFileInfo>
#include <QSet>

namespace format = analysis::format;

/// What every row of the table of layouts must say, and that all that knows layouts knows each.
class LayoutsTest : public QObject
{
    Q_OBJECT

    void eachLayout()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(format::layouts.size()); ++row)
            QTest::addRow("layout %d", row) << row;
    }
    static const format::Layout& layout()
    {
        const auto* row = static_cast<const int*>(QTest::qData("row", qMetaTypeId<int>()));
        return format::layouts.at(std::size_t(*row));
    }

private slots:
    void rowsStandByTheirIndex_data() { eachLayout(); }
    void rowsStandByTheirIndex()
    {
        QFETCH(int, row);
        QCOMPARE(layout().modelIndex, row);
        QVERIFY(format::isKnown(row));
        QCOMPARE(&format::layoutOf(row), &layout());
    }

    void namesAndFoldersAreTheirOwn()
    {
        QSet<QString> names;
        QSet<QString> folders;
        for (const format::Layout& row : format::layouts) {
            names.insert(QString::fromLatin1(row.name));
            folders.insert(QString::fromLatin1(row.folder));
        }
        QCOMPARE(names.size(), int(format::layouts.size()));
        QCOMPARE(folders.size(), int(format::layouts.size()));
        QVERIFY(!names.contains(QString()) && !folders.contains(QString()));
    }

    void blocksFollowEachOther_data() { eachLayout(); }
    void blocksFollowEachOther()
    {
        const int bitmap = 54 + 240 * 320 * layout().pixelBytes;
        QVERIFY(layout().pixelBytes == 2 || layout().pixelBytes == 3);
        QVERIFY(layout().gray >= bitmap);
        QVERIFY(layout().palette >= layout().gray + 240 * 320);
        QVERIFY(layout().parameters >= layout().palette + 512);
        QVERIFY(layout().parameters + 44 <= analysis::FileBuffer::size);
        for (const quint32 id : layout().machineIds)
            QVERIFY(id > 0);
    }

    /// Written by the simulator, found out and read by the reader.
    void aPhotographOfEachIsRead_data() { eachLayout(); }
    void aPhotographOfEachIsRead()
    {
        QFETCH(int, row);
        simulator::Field field(240 * 320);
        for (std::size_t i = 0; i < field.size(); ++i)
            field[i] = float(i % 240) / 10;
        simulator::PhotographSettings settings;
        settings.modelIndex = row;
        settings.machineId = layout().machineIds.back();
        const testing::Folder folder;
        const QString path =
            folder.write(QStringLiteral("a.bmp"), simulator::photograph(field, settings));

        analysis::PhotographReader reader;
        QVERIFY(reader.read(path, std::nullopt).isGood());
        QCOMPARE(reader.modelIndex(), row);
        const analysis::Photograph& photograph = reader.photograph();
        const auto at = [&photograph](int x, int y) {
            return double(analysis::nearestTemperature(photograph.temperatures, x, y));
        };
        QVERIFY(std::abs(at(0, 0) - 0.0) < 0.1);
        QVERIFY(std::abs(at(239, 319) - 23.9) < 0.1);
        QCOMPARE(int(photograph.markerC.x), 120);
        QCOMPARE(int(photograph.markerC.y), 160);
        QCOMPARE(int(photograph.markerA.x), 0);   // coldest
        QCOMPARE(int(photograph.markerB.x), 239); // hottest
    }

    void theSimulatedDiskHasTheFolderOfEach_data() { eachLayout(); }
    void theSimulatedDiskHasTheFolderOfEach()
    {
        QFETCH(int, row);
        simulator::SimulatedDisk disk;
        disk.plug();
        QCOMPARE(QFileInfo(disk.store("photograph", row)).path(),
                 disk.root() + QString::fromLatin1(layout().folder));
    }
};

int main(int argc, char** argv)
{
    return testing::run<LayoutsTest>(argc, argv);
}

#include "layouts_test.moc"
