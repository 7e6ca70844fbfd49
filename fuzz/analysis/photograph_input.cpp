// SPDX-License-Identifier: MIT
#include "fuzz/analysis/photograph_input.h"

#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/layouts.h"
#include "fuzz/support/target.h"

#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {
namespace {

namespace format = analysis::format;

constexpr int parameterBytes = format::parameter::firmwareVersion + 2 + 2;
constexpr int headerBytes = 54;
constexpr int tooLarge = 255;
constexpr int largest = 450'000; // of all others

int modelOf(int choice)
{
    return choice < 128 ? choice % 2 : choice - 192;
}

int sizeOf(const format::Layout& layout, int choice, int any)
{
    const int shortest = layout.parameters + format::parameter::markerC + 4;
    if (choice == tooLarge)
        return analysis::FileBuffer::size + any % 64;
    switch (choice % 8) {
    case 0:
    case 1:
        return layout.parameters + parameterBytes;
    case 2:
    case 3:
        return format::rawFileBytes;
    case 4:
        return format::rawFileBytes - 1 + any % 3;
    case 5:
        return shortest - 1 + any % 3;
    default:
        return any % largest;
    }
}

/// The whole buffer; behind `largest` there are only zeros.
std::uint8_t* buffer()
{
    static const auto bytes = std::make_unique<std::uint8_t[]>(analysis::FileBuffer::size);
    return bytes.get();
}

void put(const QByteArray& part, int offset, int fileSize)
{
    const int count = std::min(part.size(), std::min(fileSize, largest) - offset);
    if (count > 0)
        std::memcpy(buffer() + offset, part.constData(), std::size_t(count));
}

void fill(const QByteArray& piece, int fileSize)
{
    std::uint8_t* const file = buffer();
    std::memset(file, 0, largest);
    if (piece.isEmpty())
        return;
    put(piece, 0, fileSize);
    // Twice as much each time.
    const int end = std::min(fileSize, largest);
    for (int filled = piece.size(); filled < end; filled *= 2)
        std::memcpy(file + filled, file, std::size_t(std::min(filled, end - filled)));
}

} // namespace

PhotographFile takePhotograph(Input& input)
{
    const int modelIndex = modelOf(input.byte());
    const format::Layout& layout = format::layoutOf(modelIndex);
    const int sizeChoice = input.byte();
    const int low = input.number<quint16>();
    const int size = sizeOf(layout, sizeChoice, low + input.byte() * 65536);
    const QByteArray parameters = input.bytes(parameterBytes);
    const QByteArray header = input.bytes(headerBytes);
    const QByteArray palette =
        input.bytes(std::min<int>(input.number<quint16>(), 2 * format::paletteEntries));
    fill(input.bytes(input.number<quint16>()), size);
    put(header, 0, size);
    put(palette, layout.palette, size);
    put(parameters, layout.parameters, size);
    const int read = std::min(size, analysis::FileBuffer::size);
    return {modelIndex, buffer(), read, size - read};
}

QString putInMemory(const PhotographFile& photograph)
{
    static const int file = memfd_create("photograph", MFD_CLOEXEC);
    const auto size = std::size_t(photograph.size);
    mustHold(ftruncate(file, 0) == 0 &&
                 pwrite(file, photograph.bytes, size, 0) == photograph.size &&
                 ftruncate(file, photograph.size + photograph.beyond) == 0,
             "there is memory for the file");
    return QStringLiteral("/proc/self/fd/%1").arg(file);
}

} // namespace fuzz
