// SPDX-License-Identifier: MIT
/// Alarm records: folders, files, links and pictures of any name and content in the history folder,
/// read on their own and shown by the live page.
///
/// Input: a byte that says whether a record is written among them, its text (u8 length, bytes),
/// then up to six entries of the history folder:
///   u8       what it is
///   u8       length of the name, then the name
///   u8, u16  whether a text stands beside it, the text's length, then the text
///   u8       how many files are in it (at most three), for each of them:
///     u8     length of the name, then the name
///     u8     what it is made of: these bytes alone, or a small PNG, JPEG or bitmap with them in it
///     u16    where in the picture
///     u16    how many bytes, then the bytes

#include "fuzz/support/input.h"
#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "tests/support/test_run.h"

#include <QBuffer>
#include <QLabel>
#include <QListWidget>

#include <array>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using fuzz::mustHold;

const fs::path& historyPath()
{
    static const fs::path path = testing::profile().home().toStdString() + "/history";
    return path;
}

QString historyFolder()
{
    return QString::fromStdString(historyPath().string());
}

/// A name as a disk may hold it, text or not; empty when there is none like it.
std::string takeName(fuzz::Input& input)
{
    std::string name = input.bytes(input.byte()).toStdString();
    std::replace(name.begin(), name.end(), '/', '_');
    std::replace(name.begin(), name.end(), '\0', '_');
    return name == "." || name == ".." ? std::string() : name;
}

/// What cannot be made, because it is there already or the name is too long, is left out.
void put(const fs::path& path, const QByteArray& bytes)
{
    std::ofstream(path, std::ios::binary).write(bytes.constData(), bytes.size());
}

QByteArray picture(const char* format)
{
    QImage image(12, 8, QImage::Format_RGB888);
    image.fill(Qt::darkYellow);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    mustHold(image.save(&buffer, format), "the pictures to start from can be made");
    return bytes;
}

QByteArray takeFile(fuzz::Input& input)
{
    static const std::array<QByteArray, 4> bases{QByteArray(), picture("png"), picture("jpg"),
                                                 picture("bmp")};
    QByteArray file = bases[input.byte() % bases.size()];
    const int at = input.number<quint16>() % (file.size() + 1);
    const QByteArray bytes = input.bytes(input.number<quint16>());
    return file.replace(at, bytes.size(), bytes);
}

void takeFolder(fuzz::Input& input, const fs::path& path)
{
    std::error_code ignored;
    fs::create_directory(path, ignored);
    for (int files = input.byte() % 4; files > 0; --files) {
        const std::string name = takeName(input);
        const QByteArray bytes = takeFile(input);
        if (!name.empty())
            put(path / name, bytes);
    }
}

void takeEntry(fuzz::Input& input)
{
    const int kind = input.byte();
    const std::string name = takeName(input);
    const bool hasText = input.byte() % 4 != 3;
    const QByteArray text = input.bytes(input.number<quint16>());
    if (name.empty())
        return;
    const fs::path path = historyPath() / name;
    std::error_code ignored;
    switch (kind % 8) {
    case 5:
        put(path, text);
        break;
    case 6:
        fs::create_symlink("nowhere", path, ignored);
        break;
    case 7:
        fs::create_symlink(".", path, ignored); // a folder that holds itself
        break;
    default:
        takeFolder(input, path);
    }
    if (hasText)
        put(historyPath() / (name + ".ini"), text);
}

QString text(const std::string& name)
{
    return QString::fromUtf8(name.data(), int(name.size()));
}

/// Names that are no text are not listed: they could not be opened.
bool isText(const std::string& name)
{
    return text(name).toUtf8().toStdString() == name;
}

QStringList expectedNames()
{
    QStringList names;
    for (const fs::directory_entry& entry : fs::directory_iterator(historyPath())) {
        const std::string name = entry.path().filename().string();
        std::error_code ignored;
        if (entry.is_directory(ignored) && isText(name) &&
            text(name).startsWith(QLatin1String("20")) && text(name).size() >= 14)
            names.append(text(name));
    }
    names.sort();
    return names;
}

QStringList expectedPictures(const QString& record)
{
    QStringList names;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(historyPath() / record.toStdString())) {
        const std::string name = entry.path().filename().string();
        std::error_code ignored;
        const QString suffix = text(name).right(4).toLower();
        if (entry.is_regular_file(ignored) && isText(name) && name.front() != '.' &&
            (suffix == QLatin1String(".png") || suffix == QLatin1String(".jpg") ||
             suffix == QLatin1String(".bmp")))
            names.append(text(name));
    }
    names.sort();
    return names;
}

QByteArray textOf(const QString& record)
{
    std::ifstream file(historyPath() / (record.toStdString() + ".ini"), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return QByteArray::fromStdString(bytes);
}

void mustBeRead(const QString& record, const live::RecordReadings& readings)
{
    QByteArray bytes = textOf(record).left(4096); // no more is read
    if (bytes.replace("\r\n", "\n").contains('\r'))
        return; // a return that ends no line: where the last one begins is anyone's guess
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    const QStringList parts =
        QString::fromUtf8(bytes.mid(bytes.lastIndexOf('\n') + 1)).split(QLatin1Char(','));
    mustHold(readings.maximum == parts.value(0) && readings.threshold == parts.value(1) &&
                 readings.emissivity == parts.value(2),
             "the last line is read");
}

QStringList fileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths) {
        names.append(QFileInfo(path).fileName());
        mustHold(path.startsWith(historyFolder() + QLatin1Char('/')), "pictures are in the folder");
    }
    names.sort();
    return names;
}

template<typename T>
T& child(const QWidget& window, const char* name)
{
    auto* const found = window.findChild<T*>(QLatin1String(name));
    mustHold(found, name);
    return *found;
}

QStringList rows(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts.append(list.item(row)->text());
    return texts;
}

void mustBeShown(camer_window& window, const QStringList& names)
{
    window.historyFolder = historyFolder();
    window.refreshHistory();
    for (const char* name : {"listWidget", "listWidget_2"})
        mustHold(rows(child<QListWidget>(window, name)) == names, "both lists show the records");
    auto& list = child<QListWidget>(window, "listWidget_2");
    for (int row = 0; row < list.count(); ++row) {
        window.on_listWidget_2_itemClicked(list.item(row));
        const live::RecordReadings readings =
            live::recordReadings(historyFolder(), list.item(row)->text());
        mustHold(child<QLabel>(window, "label_12").text() == readings.maximum &&
                     child<QLabel>(window, "label_14").text() == readings.threshold &&
                     child<QLabel>(window, "label_16").text() == readings.emissivity,
                 "the readings are shown");
        const QStringList pictures =
            fileNames(live::recordPicturePaths(historyFolder(), list.item(row)->text()));
        mustHold(window.historyPixmaps.size() == pictures.size(), "there is a picture each");
        QStringList shown = rows(child<QListWidget>(window, "listWidget_3"));
        shown.sort();
        mustHold(shown == pictures, "and a name");
        for (int picture = 0; picture < pictures.size(); ++picture)
            window.on_listWidget_3_currentRowChanged(picture);
    }
}

void writeAmongThem(const QString& line)
{
    static const QDateTime time({2026, 3, 18}, {10, 15, 2});
    static const QList<QImage> pictures = [] {
        QImage image(12, 8, QImage::Format_RGB888);
        image.fill(Qt::blue);
        QList<QImage> seven;
        for (int i = 0; i < live::recordPictures; ++i)
            seven.append(image);
        return seven;
    }();
    const QString name = live::writeRecord(historyFolder(), time, pictures, line);
    mustHold(name.startsWith(QLatin1String("20260318101502")), "there is room for a record");
    mustHold(live::recordNames(historyFolder()).contains(name), "what was written is listed");
    mustHold(live::recordPicturePaths(historyFolder(), name).size() == live::recordPictures,
             "the pictures that were written are found");
    mustBeRead(name, live::recordReadings(historyFolder(), name));
    mustHold(textOf(name) == line.toUtf8(), "the text is as it was written");
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::prepare(true);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // Never deleted: libFuzzer leaves without an orderly end.
    static auto* const window = new camer_window;
    fs::remove_all(historyPath());
    fs::create_directory(historyPath());

    fuzz::Input input(bytes, size);
    const bool writes = input.byte() % 8 == 1;
    const QString line = QString::fromUtf8(input.bytes(input.byte()));
    for (int entries = 0; entries < 6 && !input.isEmpty(); ++entries)
        takeEntry(input);
    if (writes)
        writeAmongThem(line);

    const QStringList names = live::recordNames(historyFolder());
    QStringList sorted = names;
    sorted.sort();
    mustHold(sorted == expectedNames(), "the records are listed, and nothing else");
    for (const QString& name : names) {
        mustBeRead(name, live::recordReadings(historyFolder(), name));
        const QStringList paths = live::recordPicturePaths(historyFolder(), name);
        mustHold(fileNames(paths) == expectedPictures(name), "the pictures are found");
    }
    mustBeShown(*window, names);
    return 0;
}
