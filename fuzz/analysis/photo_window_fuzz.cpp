// SPDX-License-Identifier: MIT
/// Photographs on the way a user sends them: listed by the browser with their thumbnails, opened by
/// a double click, and examined in the analysis window.
///
/// Input: a byte that says how far it goes, the place of the cursor (u16 each), the colour bar's
/// two values (u8 each), the length of the file's name (u8, modulo 64) and the name, then
/// photographs (see photograph_input.h): for the browser one, for the analysis window up to three,
/// one after another.

#include "analysis/report/information.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "fuzz/analysis/photograph_input.h"
#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "platform/removable_drives.h"
#include "tests/support/test_run.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableWidget>

#include <cmath>

namespace {

using namespace analysis;
using fuzz::mustHold;
using fuzz::PhotographFile;

struct Cursor
{
    int x;
    int y;
};

template<typename T>
T& child(const QWidget& window, const char* name)
{
    auto* const found = window.findChild<T*>(QLatin1String(name));
    mustHold(found, name);
    return *found;
}

bool sameSpot(const overlay::Marker& a, const overlay::Marker& b)
{
    return a.x == b.x && a.y == b.y;
}

void mustBeSame(const Photograph& shown, const Photograph& expected)
{
    mustHold(shown.gray == expected.gray && shown.palette == expected.palette,
             "the window has the picture that was read");
    mustHold(sameSpot(shown.markerA, expected.markerA) &&
                 sameSpot(shown.markerB, expected.markerB) &&
                 sameSpot(shown.markerC, expected.markerC),
             "the window has the markers that were read");
    const auto same = [](float a, float b) {
        return a == b || (std::isnan(a) && std::isnan(b));
    };
    mustHold(std::equal(shown.temperatures.begin(), shown.temperatures.end(),
                        expected.temperatures.begin(), same),
             "the window has the temperatures that were read");
}

/// The analysis window and, beside it, what the pure reader makes of the same bytes. What a short
/// photograph lacks comes from the one before, in both.
class Examination
{
public:
    Examination() : m_buffer(new std::uint8_t[FileBuffer::size]) { m_window.resize(500, 500); }

    void begin()
    {
        static const Photograph untouched;
        std::fill_n(m_buffer.get(), m_used, std::uint8_t(0));
        m_used = 0;
        m_expected = untouched;
        m_window.fileBuffer.clear();
        m_window.photograph = untouched;
        m_window.readCount = 0;
        m_window.conversion = unchanged;
        unitSelector().setCurrentIndex(0);
        label().clearTools();
        label().rectList.append({QStringLiteral("R0"), 200, 300, 239, 319, {}});
        label().pointList.append({QStringLiteral("P0"), 240, 320, 9, {}});
    }

    void open(const PhotographFile& file)
    {
        const QString path = fuzz::putInMemory(file);
        std::copy_n(file.bytes, file.size, m_buffer.get());
        m_used = std::max(m_used, file.size);
        const bool good = read(m_buffer.get(), file.size, file.modelIndex, m_expected);
        mustHold(m_window.set_Image_addr(path, file.modelIndex) == good,
                 "the window takes what the reader takes");
        mustHold(m_window.readCount == file.size, "the size is told");
        mustBeSame(m_window.photograph, m_expected);
        if (good)
            mustBeShown(file);
    }

    void pointAt(const Cursor& cursor)
    {
        m_window.updat_XY_Temp(cursor.x, cursor.y);
        const float stored = nearestTemperature(m_expected.temperatures, cursor.x, cursor.y);
        mustHold(child<QLabel>(m_window, "label_4").text() ==
                     oneDecimal(double(shown(stored, m_window.conversion))) +
                         (unitSelector().currentIndex() == 0 ? QStringLiteral("°C")
                                                             : QStringLiteral("°F")),
                 "the cursor reads the temperature under it");
    }

    void turnUnit()
    {
        for (int turn = 0; turn < 2; ++turn) {
            const int index = 1 - unitSelector().currentIndex();
            const Conversion before = m_window.conversion;
            unitSelector().setCurrentIndex(index);
            const Conversion expected = conversionFor(index, 0, m_expected.parameters.unit,
                                                      hasRawImage(m_window.readCount), before);
            mustHold(m_window.conversion.scale == expected.scale &&
                         m_window.conversion.offset == expected.offset,
                     "the unit is turned");
            mustHold(child<QTableWidget>(m_window, "tableWidget").rowCount() == 2,
                     "both tools are measured");
        }
    }

    void paint(int startValue, int endValue)
    {
        auto& bar = child<My_ColorSlider>(m_window, "widget");
        bar.startValue = std::min(startValue, endValue);
        bar.endValue = std::max(startValue, endValue);
        mustHold(!m_window.grab().isNull(), "the window is painted");
        constexpr int stride = 61;
        for (int pixel = 0; pixel < format::grayBytes; pixel += stride) {
            const int gray = m_window.grayMatrix.data[pixel];
            const int index = std::clamp(gray, 255 - bar.endValue, 255 - bar.startValue);
            const Rgb expected = m_expected.palette[std::size_t(index)];
            mustHold(m_window.falseColourImage.pixel(pixel % 240, pixel / 240) ==
                         qRgb(expected.red, expected.green, expected.blue),
                     "the picture has the palette's colours");
        }
    }

private:
    QComboBox& unitSelector() { return child<QComboBox>(m_window, "comboBox"); }
    MyLabel& label() { return child<MyLabel>(m_window, "label"); }

    void mustBeShown(const PhotographFile& file)
    {
        mustHold(sameSpot(label().markerA, m_expected.markerA) &&
                     sameSpot(label().markerB, m_expected.markerB) &&
                     sameSpot(label().markerC, m_expected.markerC),
                 "the label has the markers");
        const auto texts =
            informationTexts(m_window.fileName, m_window.created, file.size, m_expected.parameters,
                             m_expected.mean, unitSelector().currentIndex(), m_window.conversion);
        auto& table = child<QTableWidget>(m_window, "tableWidget_2");
        for (int row = 0; row < informationRows; ++row)
            mustHold(table.item(row, 1)->text() == texts[std::size_t(row)],
                     "the table tells about this photograph");
    }

    Analysis_Widget m_window;
    std::unique_ptr<std::uint8_t[]> m_buffer;
    int m_used = 0;
    Photograph m_expected;
};

/// The browser, on a disk whose folder holds one photograph at a time.
class Browsing
{
public:
    Browsing()
    {
        const QString root = testing::profile().home() + QStringLiteral("/disk/");
        m_folder.setPath(root + QStringLiteral("DCIM_100"));
        m_folder.mkpath(QStringLiteral("."));
        platform::setDriveProvider([root] { return QStringList{root}; });
        m_window = std::make_unique<photo_window>(nullptr);
        m_window->resize(500, 500);
        m_window->show();
    }

    void open(const PhotographFile& file, const QString& name)
    {
        const QString path = m_folder.path() + QLatin1Char('/') + name;
        const auto* const bytes = reinterpret_cast<const char*>(file.bytes);
        fuzz::putFile(path, QByteArray(bytes, file.size) + QByteArray(file.beyond, '\0'));
        m_window->modelIndex = file.modelIndex;
        m_window->get_image_information();
        mustHold(m_window->fileNames == QStringList(name), "the photograph is listed");
        mustHold(m_window->fileSizes == QStringList(kilobytes(file.size + file.beyond)),
                 "and its size");
        showThumbnail();

        QListWidget* const list = thumbnailList();
        mustHold(list && list->count() == 1, "there is one to click on");
        m_window->list_item_doubleclicked(list->item(0));
        mustBeOpenedOrRefused(file);
        QFile::remove(path);
    }

private:
    QListWidget* thumbnailList() const
    {
        const auto lists = child<QWidget>(*m_window, "tab").findChildren<QListWidget*>();
        const auto found = std::find_if(lists.begin(), lists.end(), [](const QListWidget* list) {
            return list->objectName() != QLatin1String("listWidget"); // the drives
        });
        return found == lists.end() ? nullptr : *found;
    }

    void showThumbnail()
    {
        child<QTabWidget>(*m_window, "tabWidget").setCurrentIndex(0);
        // Painted, it is asked for; read, it is painted.
        m_window->grab();
        QCoreApplication::processEvents();
        const QPixmap& thumbnail = m_window->thumbnails.first();
        mustHold(thumbnail.isNull() || thumbnail.size() == QSize(132, 176),
                 "a thumbnail is small, or there is none");
    }

    void mustBeOpenedOrRefused(const PhotographFile& file)
    {
        static Photograph expected;
        expected = Photograph();
        const bool good = read(file.bytes, file.size, file.modelIndex, expected);
        const std::unique_ptr<Analysis_Widget> opened(
            child<QWidget>(*m_window, "tab_2").findChild<Analysis_Widget*>());
        const std::unique_ptr<QMessageBox> message(m_window->findChild<QMessageBox*>());
        mustHold(bool(opened) == good && bool(message) == !good, "it is opened or refused");
        if (opened)
            mustBeSame(opened->photograph, expected);
    }

    QDir m_folder;
    std::unique_ptr<photo_window> m_window;
};

/// Any name a disk can hold.
QString nameOf(QByteArray bytes)
{
    bytes.replace('/', '_');
    bytes.replace('\0', '_');
    // Names that are no text are not found again by the system's own means.
    const QString name = QString::fromUtf8(bytes).remove(QChar::ReplacementCharacter);
    return name + QStringLiteral("_.bmp");
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
    static auto* const examination = new Examination;
    static auto* const browsing = new Browsing;

    fuzz::Input input(bytes, size);
    const int way = input.byte();
    const Cursor cursor{input.number<quint16>() % 241, input.number<quint16>() % 321};
    const int startValue = input.byte();
    const int endValue = input.byte();
    const QString name = nameOf(input.bytes(input.byte() % 64));

    if (way % 16 == 0) {
        browsing->open(fuzz::takePhotograph(input), name);
        return 0;
    }
    examination->begin();
    for (int count = 1 + way / 16 % 3; count > 0; --count)
        examination->open(fuzz::takePhotograph(input));
    examination->pointAt(cursor);
    if (way % 16 < 8)
        examination->turnUnit();
    if (way % 16 == 1)
        examination->paint(startValue, endValue);
    return 0;
}
