// SPDX-License-Identifier: MIT
/// Makes the seeds of the fuzz targets from what the simulated imager makes: make_seeds FOLDER
/// writes FOLDER/TARGET/NAME, a few small files for each target.

#include "analysis/photograph/layouts.h"
#include "live/live_frame.h"
#include "simulator/photograph.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QtEndian>

#include <array>
#include <cstdio>

namespace {

class Seeds
{
public:
    explicit Seeds(const QString& folder) : m_folder(folder) {}

    void add(const char* target, const QString& name, const QByteArray& bytes) const
    {
        const QDir folder(m_folder.filePath(QLatin1String(target)));
        QFile file(folder.filePath(name));
        if (!folder.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
            file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

private:
    QDir m_folder;
};

void addConfigurationRecords(const Seeds& seeds)
{
    const auto serialised = [](const QString& text) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << text;
        return bytes;
    };
    const auto add = [&seeds](const char* name, const QByteArray& file) {
        seeds.add("configuration_record_fuzz", QLatin1String(name), file);
    };
    const QByteArray fresh =
        serialised(QStringLiteral("000,EN,C:/Users/user/Documents/Tepla Imaging Suite"));
    add("fresh", fresh);
    add("chosen", serialised(QStringLiteral("000,RU,D:\\тревоги")));
    add("comma", serialised(QStringLiteral("000,KO,C:/a,b")));
    const QByteArray shorter = serialised(QStringLiteral("000,CH,D:/b"));
    add("old-tail", shorter + fresh.mid(shorter.size()));
    QByteArray windows = serialised(QStringLiteral("000,EN,C:/\u0A05\u010A"));
    add("windows", windows.replace("\n", "\r\n"));
    add("dropped-byte", serialised(QStringLiteral("000,CH,C:/\u4E0D")));
    add("short", serialised(QStringLiteral("000")));
    add("null", serialised(QString()));
}

void addMountedVolumes(const Seeds& seeds)
{
    seeds.add("mounted_volumes_fuzz", QStringLiteral("usual"),
              "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
              "36 22 0:5 / /proc rw - proc proc rw\n"
              "40 22 8:17 / /media/user/IMAGER rw,nosuid - vfat /dev/sdb1 rw\n");
    seeds.add("mounted_volumes_fuzz", QStringLiteral("escaped"),
              "40 22 8:16 / /media/user/MY\\040DISK\\134\\012 rw - vfat /dev/sdb rw\n"
              "41 22 8:17 / /boot/efi rw - vfat /dev/sdb1 rw\n"
              "42 22 8:17 / /media/user/two rw - vfat /dev/sdb1 rw\n");
}

void addToolFiles(const Seeds& seeds)
{
    seeds.add("tool_file_fuzz", QStringLiteral("by-hand"),
              R"({"points": [[7, 9], [240, 320]], "lines": [[10, 300, 200, 20]]})");
    seeds.add("tool_file_fuzz", QStringLiteral("whole"),
              R"({"version": 1, "points": [[1, 2]], "lines": [[1, 2, 3, 4]],
                  "rectangles": [[9, 8, 7, 6], [0, 0, 240, 320]], "circles": [[120, 160, 5]],
                  "names": ["P3", "L0", "R1", "R2", "C7"],
                  "colours": {"L0": "#0000ff", "C7": "#80123456"}})");
    seeds.add("tool_table_fuzz", QStringLiteral("commas"),
              "name,type,x1,y1,x2,y2,radius,colour\nP3,point,1,2,,,,#0000ff\n"
              "R0,rectangle,9,8,7,6,,\nC7,circle,120,160,,,5,#80123456\n");
    seeds.add("tool_table_fuzz", QStringLiteral("another-order"),
              "name;type;x1;y1;x2;y2;radius;colour\r\n\"L1\";line;1;2;3;4\r\nL0;line;5;6;7;8\r\n");
    seeds.add("tool_file_fuzz", QStringLiteral("outside"), R"({"circles": [[1, 2, 3]]})");
}

QByteArray word(int value)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(quint16(value), bytes.data());
    return bytes;
}

/// What the imager sees, one scene after the other.
simulator::Field field(int number)
{
    const simulator::Scene scene(simulator::SceneKind(number % 4), unsigned(number));
    return scene.field(number, scene.usualHotSpot());
}

void addLiveFrames(const Seeds& seeds)
{
    constexpr int row = 160;
    constexpr int rowBytes = 2 * live::frameColumns;
    for (int i = 0; i < 4; ++i) {
        const QByteArray frame =
            simulator::liveFrame(field(i), simulator::Palette(i % 3), 40.0, 0.95);
        const QByteArray piece = frame.mid(row * rowBytes, rowBytes);
        // Whole, one byte short, some bytes long, any size; format YUYV; can be mapped.
        const QByteArray size = QByteArray(1, char(i)) + QByteArray(3, i == 3 ? '\1' : '\0');
        const QByteArray kind("\x15\0", 2);
        seeds.add("live_frame_fuzz", QStringLiteral("frame-%1").arg(i),
                  QByteArray(1, '\0') + size + kind + frame.mid(live::pictureBytes) + piece);
        seeds.add("live_frame_fuzz", QStringLiteral("loops-%1").arg(i),
                  QByteArray(1, '\1') + char(i) + piece);
    }
}

/// Alarm records as the inputs tell them, in the order of fuzz/live/alarm_records_fuzz.cpp.
void addAlarmRecords(const Seeds& seeds)
{
    const auto named = [](const QByteArray& name) {
        return char(name.size()) + name;
    };
    const auto sized = [](const QByteArray& bytes) {
        return word(bytes.size()) + bytes;
    };
    const auto entry = [&](int kind, const QByteArray& name, const QByteArray& text) {
        return QByteArray(1, char(kind)) + named(name) + '\0' + sized(text);
    };
    const auto file = [&](const QByteArray& name, int made, const QByteArray& bytes) {
        return named(name) + char(made) + word(0) + sized(bytes);
    };
    const QByteArray noFiles(1, '\0');
    const QByteArray three(1, '\3');
    const QByteArray pictures =
        three + file("F1.JPG", 2, "") + file("Alarm.png", 1, "") + file("L1.bmp", 3, "");
    const QByteArray record = entry(0, "20260318101502", "36.2,34.0,0.97") + pictures;
    const QByteArray reads = QByteArray("\0", 1) + named("");
    const QByteArray writes = QByteArray(1, '\1') + named("36.2,34.0,0.97");
    const auto add = [&seeds](const char* name, const QByteArray& input) {
        seeds.add("alarm_records_fuzz", QLatin1String(name), input);
    };
    add("record", reads + record);
    add("second", writes + record);
    add("others", reads + entry(0, "backup", "") + noFiles + entry(0, "2023", "1,2,3") + noFiles +
                      entry(0, "20240101120000x", "two\nlines,1\r\n") + noFiles);
    add("no-folders", reads + entry(5, "20240101120000", "a,b,c") +
                          entry(6, "20240101120001", ",") + entry(7, "20240101120002", "x"));
    add("no-pictures", reads + entry(0, "20240101120000", "1,2") + three +
                           file("empty.png", 0, "") + file("text.jpg", 0, "no picture") +
                           file("notes.txt", 0, "BM"));
}

/// A photograph as the inputs tell it, in the order of fuzz/analysis/photograph_input.h. The size
/// choices there: 0 as made, 2 with a raw image, 5 as short as can be, 6 any, 255 too large.
QByteArray photographInput(int scene, const simulator::PhotographSettings& settings, int sizeChoice)
{
    namespace format = analysis::format;
    const QByteArray file = simulator::photograph(field(scene), settings);
    const format::Layout& layout = format::layoutOf(settings.modelIndex);
    constexpr int row = 160;
    const int from = settings.raw ? format::rawOffset + row * format::rawColumns
                                  : layout.gray + row * format::columns;
    const QByteArray piece = file.mid(from, format::columns);
    return QByteArray(1, char(settings.modelIndex)) + char(sizeChoice) + word(1) + '\1' +
           file.mid(layout.parameters, 46).leftJustified(46, '\0') + file.left(54) + word(512) +
           file.mid(layout.palette, 512) + word(piece.size()) + piece;
}

void addPhotographs(const Seeds& seeds)
{
    constexpr std::array<int, 10> sizeChoices{0, 0, 2, 0, 0, 0, 2, 5, 255, 6};
    for (int i = 0; i < int(sizeChoices.size()); ++i) {
        simulator::PhotographSettings settings;
        settings.modelIndex = i % 2;
        settings.raw = i % 4 == 2;
        settings.fahrenheit = i % 5 == 4;
        settings.machineId = i == 9 ? 7 : quint32(5 + i / 2 % 2);
        settings.palette = simulator::Palette(i % 3);
        const QByteArray input = photographInput(i, settings, sizeChoices[std::size_t(i)]);
        const QByteArray colourBar("\x0A\xF0", 2);
        // The browser; the window with one photograph, painted or not; with two.
        const QByteArray way(1, char(i % 4 == 0 ? 0 : i % 4 == 1 ? 1 : i % 4 == 2 ? 8 : 20));
        // Both of the label's last positions lie outside the picture.
        const QByteArray cursor = i % 2 == 0 ? word(120) + word(160) : word(240) + word(320);
        const QByteArray name("IR_00012");
        seeds.add("photo_window_fuzz", QString::number(i),
                  way + cursor + colourBar + char(name.size()) + name + input +
                      (i % 4 == 3 ? input : QByteArray()));
        const QByteArray tools = word(10) + word(20) + word(200) + word(300);
        seeds.add("photograph_fuzz", QString::number(i),
                  QByteArray(1, char(1 << i % 5)) + char(i) + colourBar + input + tools);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: make_seeds FOLDER\n", stderr);
        return 2;
    }
    const Seeds seeds{QString::fromLocal8Bit(argv[1])};
    addConfigurationRecords(seeds);
    addMountedVolumes(seeds);
    addToolFiles(seeds);
    addLiveFrames(seeds);
    addAlarmRecords(seeds);
    addPhotographs(seeds);
    return 0;
}
