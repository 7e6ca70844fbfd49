// SPDX-License-Identifier: MIT
/// Photographs without a window: the reader as the analysis window uses it, the stricter one of
/// thermaphoto, and what is computed from a photograph.
///
/// Input: a byte that says what else to do with the photograph, the unit byte and the colour bar's
/// two values (u8 each), the photograph (see photograph_input.h), then a byte and a place for
/// tools: u16 each.

#include "analysis/export/photograph_export.h"
#include "analysis/photograph/false_colour.h"
#include "analysis/photograph/photograph_reader.h"
#include "analysis/photograph/tool_statistics.h"
#include "analysis/report/information.h"
#include "fuzz/analysis/photograph_input.h"
#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"

#include <QtEndian>

#include <cmath>

using files::Outcome;
using files::Problem;

namespace {

using namespace analysis;
using fuzz::mustHold;
using fuzz::PhotographFile;

/// What else is done with the photograph, one bit each.
enum Way
{
    Strictly = 1,
    Informing = 2,
    Measuring = 4,
    Colouring = 8,
    Exporting = 16
};

/// Pixels looked at: all of them would take longer than reading the photograph.
constexpr int stride = 61;

template<typename T>
T stored(const PhotographFile& file, int offset)
{
    return qFromLittleEndian<T>(file.bytes + offset);
}

bool isKnown(quint32 machineId)
{
    return machineId == 5 || machineId == 6;
}

bool same(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

void mustBePicture(const Photograph& photograph, const PhotographFile& file)
{
    const format::Layout& layout = format::layoutOf(file.modelIndex);
    for (int i = 0; i < format::grayBytes; i += stride) {
        const int expected = file.modelIndex == 0 ? file.bytes[layout.gray + i]
                             : file.modelIndex == 1
                                 ? file.bytes[layout.gray + format::grayBytes - 1 - i]
                                 : 0;
        mustHold(photograph.gray[std::size_t(i)] == expected, "gray is what stands there");
    }
    for (int i = 0; i < format::paletteEntries; ++i) {
        const int entry = stored<quint16>(file, layout.palette + 2 * i);
        const Rgb colour{uchar((entry >> 11) * 8), uchar((entry >> 5 & 63) * 4),
                         uchar((entry & 31) * 8)};
        mustHold(photograph.palette[std::size_t(i)] == colour, "the palette is widened");
    }
}

/// Modulo 2^16, as markers are kept.
bool isAt(const overlay::Marker& marker, int x, int y)
{
    return quint16(marker.x) == quint16(x) && quint16(marker.y) == quint16(y);
}

void mustBeMarked(const Photograph& photograph, const PhotographFile& file)
{
    const auto word = [&file](int offset) {
        return int(stored<quint16>(file, format::layoutOf(file.modelIndex).parameters + offset));
    };
    const int turned = file.modelIndex == 1;
    const auto place = [turned](int stored, int last) {
        return turned ? last - stored : stored;
    };
    mustHold(isAt(photograph.markerA, place(word(14), 239), place(word(16), 319)), "marker A");
    mustHold(isAt(photograph.markerB, place(word(18), 239), place(word(20), 319)), "marker B");
    mustHold(isAt(photograph.markerC, place(word(22), 240) - 1, place(word(24), 320) - 1),
             "marker C");
}

float rawTemperature(const PhotographFile& file, int x, int y)
{
    const int pixel = (y * 4 / 5) * 192 + x * 4 / 5;
    return float(stored<quint16>(file, format::rawOffset + 2 * pixel) * 0.0625 - 273.15);
}

float grayTemperature(const Photograph& photograph, int x, int y)
{
    const Parameters& p = photograph.parameters;
    const int gray = photograph.gray[std::size_t(y * 240 + x)];
    const float ratio = (float(p.grayMaximum) - float(gray)) / float(p.grayMaximum - p.grayMinimum);
    return float(p.maximum10 / 10.0 - double(ratio) * (p.maximum10 / 10.0 - p.minimum10 / 10.0));
}

struct Extremes
{
    float low = INFINITY;
    float high = -INFINITY;
    bool finite = true;
};

Extremes extremesOf(const Temperatures& temperatures)
{
    Extremes extremes;
    float sum = 0; // of nothing but zeros unless one is not finite
    for (const float value : temperatures) {
        extremes.low = value < extremes.low ? value : extremes.low;
        extremes.high = value > extremes.high ? value : extremes.high;
        sum += value * 0.0F;
    }
    extremes.finite = sum == 0.0F;
    return extremes;
}

void mustBeMeasured(const Photograph& photograph, const PhotographFile& file,
                    const Extremes& extremes)
{
    const int block = format::layoutOf(file.modelIndex).parameters;
    const Parameters& p = photograph.parameters;
    mustHold(p.maximum10 == stored<qint16>(file, block + 1) &&
                 p.minimum10 == stored<qint16>(file, block + 3) &&
                 p.grayMaximum == file.bytes[block + 5] && p.grayMinimum == file.bytes[block + 6] &&
                 p.centre10 == stored<qint16>(file, block + 7) &&
                 p.emissivity100 == file.bytes[block + 9],
             "parameters are what stands there");
    mustBeMarked(photograph, file);
    const bool raw = file.size == format::rawFileBytes;
    for (int pixel = 0; pixel < format::grayBytes; pixel += stride) {
        const int x = pixel % 240;
        const int y = pixel / 240;
        const float expected = raw ? rawTemperature(file, x, y) : grayTemperature(photograph, x, y);
        mustHold(same(nearestTemperature(photograph.temperatures, x, y), expected),
                 "temperatures are those of the formula");
    }
    if (raw)
        mustHold(extremes.low >= -273.15F && extremes.high <= 65535 / 16.0F - 273.15F,
                 "raw temperatures are in range");
    if (extremes.finite) {
        const double slack =
            1e-6 * (1 + std::max(std::abs(double(extremes.low)), std::abs(double(extremes.high))));
        mustHold(photograph.mean >= double(extremes.low) - slack &&
                     photograph.mean <= double(extremes.high) + slack,
                 "the mean lies between the extremes");
    }
}

/// Null when the imager is not known. The one returned before is overwritten; of what it held,
/// nothing may show.
const Photograph* photographOf(const PhotographFile& file)
{
    static const Photograph untouched;
    static Photograph photograph;
    photograph = untouched;
    const bool read = analysis::read(file.bytes, file.size, file.modelIndex, photograph);
    const auto machineId = stored<quint32>(file, format::layoutOf(file.modelIndex).parameters + 10);
    mustHold(read == isKnown(machineId), "known imagers are read, others are not");
    mustHold(photograph.parameters.machineId == machineId, "the machine ID is what stands there");
    mustBePicture(photograph, file);
    return read ? &photograph : nullptr;
}

bool equal(const Photograph& a, const Photograph& b)
{
    return a.gray == b.gray && a.palette == b.palette &&
           std::equal(a.temperatures.begin(), a.temperatures.end(), b.temperatures.begin(), same);
}

/// The reader of thermaphoto, with and without being told the layout.
void readStrictly(const PhotographFile& file)
{
    static PhotographReader reader;
    const QString path = fuzz::putInMemory(file);
    const auto holds = [&file](int modelIndex) {
        return file.size >= format::layoutOf(modelIndex).parameters + 26;
    };
    const auto knows = [&file, holds](int modelIndex) {
        return holds(modelIndex) &&
               isKnown(stored<quint32>(file, format::layoutOf(modelIndex).parameters + 10));
    };
    const bool told = file.modelIndex == 0 || file.modelIndex == 1;
    const std::optional<int> modelIndex = told ? std::optional<int>(file.modelIndex) : std::nullopt;
    // Only a photograph of layout 0 begins with a bitmap of 24 bits a pixel.
    const bool isCutOff =
        !holds(0) && file.bytes[0] == 'B' && file.bytes[1] == 'M' && file.bytes[28] == 24;
    const Outcome outcome = reader.read(path, modelIndex);
    Problem expected = Problem::None;
    if (!holds(modelIndex.value_or(1)))
        expected = Problem::TooShort;
    else if (told && !knows(*modelIndex))
        expected = Problem::OtherImager;
    else if (!told && !knows(0) && !knows(1))
        expected = isCutOff ? Problem::TooShort : Problem::NeitherLayout;
    mustHold(outcome.problem == expected, "the strict reader says what is wrong");
    mustHold(outcome.detail.isEmpty() == outcome.isGood(), "and says more about it");
    if (!outcome.isGood())
        return;
    PhotographFile again = file;
    again.modelIndex = told ? file.modelIndex : knows(0) ? 0 : 1;
    mustHold(reader.modelIndex() == again.modelIndex && reader.readCount() == file.size,
             "layout and size are told");
    const Photograph* const photograph = photographOf(again);
    mustHold(photograph && equal(reader.photograph(), *photograph), "both readers agree");
}

void inform(const Photograph& photograph, const PhotographFile& file, int unitByte)
{
    const bool raw = file.size == format::rawFileBytes;
    const ShownUnit unit = shownUnit(unitAt(unitByte % 3), photograph.parameters.unit, raw);
    mustHold(unitAt(int(unit.unit)).has_value(), "a unit is Celsius or Fahrenheit");
    const auto texts =
        informationTexts(QStringLiteral("a.bmp"), QString(), file.size, photograph.parameters,
                         photograph.mean, int(unit.unit), unit.conversion);
    for (std::size_t row = 0; row < texts.size(); ++row)
        mustHold(texts[row].isEmpty() == (row == std::size_t(InformationRow::Created)),
                 "every row has a text");
}

void measure(const Photograph& photograph, const Extremes& extremes, fuzz::Input& input)
{
    const bool asTable = input.byte() % 2 == 1;
    overlay::Tools tools;
    tools.rectList.append({QStringLiteral("R0"), 0, 0, 239, 319, {}});
    // Tools come from the mouse: inside the picture or one step beyond, not yet placed among them.
    if (!input.isEmpty()) {
        const int x1 = input.number<quint16>() % 242 - 1;
        const int y1 = input.number<quint16>() % 322 - 1;
        const int x2 = input.number<quint16>() % 242 - 1;
        const int y2 = input.number<quint16>() % 322 - 1;
        tools.pointList.append({QStringLiteral("P"), x1, y1, 9, {}});
        tools.lineList.append({QStringLiteral("L"), x1, y1, x2, y2, {}});
        tools.rectList.append({QStringLiteral("R"), x2, y2, x1, y1, {}});
        tools.circleList.append({QStringLiteral("C"), x1, y1, x2, y2, y2 % 160, {}});
    }
    if (asTable) {
        mustHold(!toolRows(tools, photograph.temperatures, unchanged).empty(),
                 "the whole picture has a row");
        return;
    }
    const auto areas = measureAreas(tools, photograph.temperatures);
    const auto placed = [](const auto& list, auto first) {
        return std::count_if(list.begin(), list.end(),
                             [first](const auto& tool) { return tool.*first >= 0; });
    };
    const auto placedLines = placed(tools.lineList, &overlay::LineTool::x1);
    const auto placedAreas = placedLines + placed(tools.rectList, &overlay::RectTool::x1) +
                             placed(tools.circleList, &overlay::CircleTool::cx);
    mustHold(std::size_t(placedAreas) == areas.size(), "every placed tool is measured");
    const AreaStatistics& whole = areas[std::size_t(placedLines)];
    mustHold(whole.pixels == format::grayBytes, "the whole picture is measured");
    mustHold(whole.high == std::max(-10.0F, extremes.high) &&
                 whole.low == std::min(2000.0F, extremes.low),
             "the whole picture has the extremes of the matrix");
    for (const AreaStatistics& area : areas) {
        mustHold(area.pixels >= 0 && area.pixels <= format::grayBytes, "pixels are counted once");
        mustHold(area.pixels > 0 || area.average == 0.0F, "nothing has the average 0");
        mustHold(area.high <= std::max(-10.0F, extremes.high) &&
                     area.low >= std::min(2000.0F, extremes.low),
                 "no area goes beyond the matrix");
    }
}

void colour(const Photograph& photograph, int startValue, int endValue)
{
    const QImage picture = falseColourPicture(photograph, startValue, endValue);
    for (int pixel = 0; pixel < format::grayBytes; pixel += stride) {
        // Beyond the span, the colour at its edge; crossed, the cold one wins below the hot one.
        const int gray = photograph.gray[std::size_t(pixel)];
        const int hot = 255 - startValue;
        const int index = gray > hot ? hot : std::max(gray, 255 - endValue);
        const Rgb expected = photograph.palette[std::size_t(index)];
        mustHold(picture.pixel(pixel % 240, pixel / 240) ==
                     qRgb(expected.red, expected.green, expected.blue),
                 "the picture has the palette's colours");
    }
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::prepare();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    fuzz::Input input(bytes, size);
    const int ways = input.byte();
    const int unitByte = input.byte();
    const int startValue = input.byte();
    const int endValue = input.byte();
    const PhotographFile file = fuzz::takePhotograph(input);

    if (ways & Strictly)
        readStrictly(file);
    const Photograph* const photograph = photographOf(file);
    if (!photograph)
        return 0;
    const Extremes extremes = extremesOf(photograph->temperatures);
    mustBeMeasured(*photograph, file, extremes);
    if (ways & Informing)
        inform(*photograph, file, unitByte);
    if (ways & Measuring)
        measure(*photograph, extremes, input);
    if (ways & Colouring)
        colour(*photograph, startValue, endValue);
    if (ways & Exporting)
        mustHold(shownRows(*photograph, unchanged).size() == photograph->temperatures.size(),
                 "all temperatures are exported");
    return 0;
}
